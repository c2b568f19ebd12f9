// Files: opening, reading, writing, and telling why not.
#include "platform/file/File.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace {

class File : public testing::Test
{
protected:
    File()
    {
        std::string name = std::filesystem::temp_directory_path() / "splitframe-file-XXXXXX";
        m_directory = mkdtemp(name.data());
    }
    ~File() override { std::filesystem::remove_all(m_directory); }
    CString Path(const char* name) const { return CString((m_directory / name).c_str()); }

    std::filesystem::path m_directory;
};

TEST_F(File, WritesAndReadsBack)
{
    const CString strPath = Path("\xE4\xB8\xAD\xF0\x9F\x98\x80.bin");
    std::string bytes(100000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7);
    CFile file;
    ASSERT_TRUE(file.Open(strPath, CFile::modeCreate | CFile::modeWrite));
    EXPECT_TRUE(file.GetFilePath() == strPath);
    file.Write(bytes.data(), 40000);
    file.Write(bytes.data() + 40000, static_cast<UINT>(bytes.size() - 40000));
    file.Close();
    file.Close();

    ASSERT_TRUE(file.Open(strPath, CFile::modeRead));
    EXPECT_EQ(file.GetLength(), bytes.size());
    std::string back(bytes.size() + 10, 'x');
    EXPECT_EQ(file.Read(back.data(), 3), 3U);
    EXPECT_EQ(file.Read(back.data() + 3, static_cast<UINT>(bytes.size() + 7)), bytes.size() - 3);
    EXPECT_EQ(file.Read(back.data(), 0), 0U);
    back.resize(bytes.size());
    EXPECT_EQ(back, bytes);

    ASSERT_TRUE(
        file.Open(strPath, CFile::modeCreate | CFile::modeWrite)); // while open: the old one is closed
    EXPECT_EQ(file.GetLength(), 0U);
}

TEST_F(File, TellsWhyItIsNotOpened)
{
    mkfifo((m_directory / "pipe").c_str(), 0600);
    struct Case
    {
        CString strPath;
        UINT nFlags;
        int cause;
    };
    const Case cases[] = {
        {Path("missing"), CFile::modeRead, CFileException::fileNotFound},
        {Path("missing/file"), CFile::modeCreate | CFile::modeWrite, CFileException::fileNotFound},
        {Path("."), CFile::modeRead, CFileException::badPath},
        {Path("."), CFile::modeWrite, CFileException::badPath},
        {CString(), CFile::modeRead, CFileException::fileNotFound},
        {CString(L'x', 5000), CFile::modeRead, CFileException::badPath},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.strPath.Left(60).ToUtf8());
        CFile file;
        CFileException exception;
        EXPECT_FALSE(file.Open(c.strPath, c.nFlags, &exception));
        EXPECT_EQ(exception.m_cause, c.cause);
        EXPECT_TRUE(exception.m_strFileName == c.strPath);
        EXPECT_FALSE(file.Open(c.strPath, c.nFlags));
    }
    CFile pipe;
    ASSERT_TRUE(pipe.Open(Path("pipe"), CFile::modeRead)); // does not wait for a writer
    char byte = 0;
    EXPECT_EQ(pipe.Read(&byte, 1), 0U);
}

// The cause of the file exception that the work raises, or -1 for none.
int CauseOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (CFileException* pException) {
        const int cause = pException->m_cause;
        pException->Delete();
        return cause;
    }
    return -1;
}

TEST_F(File, RaisesTheFileException)
{
    CFile file;
    char byte = 0;
    EXPECT_EQ(CauseOf([&] { file.GetLength(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Write("x", 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    ASSERT_TRUE(file.Open(Path("new"), CFile::modeCreate | CFile::modeWrite));
    EXPECT_NE(CauseOf([&] { file.Read(&byte, 1); }), -1); // opened for writing only
}

} // namespace
