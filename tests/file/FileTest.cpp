// Files: opening, reading, writing, and telling why not.
#include "platform/file/File.h"

#include "platform/file/MemFile.h"
#include "platform/file/ReplacementFile.h"
#include "support/CauseOf.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class File : public testing::Test, public test::TempFolder
{
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
    mkfifo((m_folder / "pipe").c_str(), 0600);
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

int CauseOf(const std::function<void()>& work)
{
    return test::CauseOf<CFileException>(work);
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
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    CMemFile memory;
    EXPECT_EQ(CauseOf([&] { memory.Seek(-1, CFile::end); }), CFileException::badSeek);
    CMemFile fixed(reinterpret_cast<const BYTE*>("abc"), 3);
    EXPECT_EQ(CauseOf([&] { fixed.Write("x", 1); }), CFileException::accessDenied);
}

// One script of writes and seeks gives the same bytes and places in memory and on the disk.
TEST_F(File, MemoryBehavesLikeTheDisk)
{
    CFile disk;
    ASSERT_TRUE(disk.Open(Path("disk"), CFile::modeCreate | CFile::modeReadWrite));
    CMemFile memory;
    std::string told[2];
    CFile* files[] = {&disk, &memory};
    for (int i = 0; i < 2; ++i) {
        CFile& file = *files[i];
        const auto note = [&](ULONGLONG n) { told[i] += std::to_string(n) + " "; };
        file.Write("hello world", 11);
        note(file.Seek(-5, CFile::current));
        file.Write("W", 1);
        note(file.Seek(4, CFile::end)); // behind the end: the gap is filled when something is written there
        char bytes[32] = {};
        note(file.Read(bytes, 8));
        note(file.GetLength());
        file.Write("!", 1);
        note(file.GetLength());
        file.SeekToBegin();
        note(file.Read(bytes, sizeof(bytes)));
        told[i].append(bytes, sizeof(bytes));
    }
    EXPECT_EQ(told[0], told[1]);
    EXPECT_EQ(told[1].substr(0, told[1].find('h')), "6 15 0 11 16 16 ");
}

TEST_F(File, IsReplacedWholeOrNotAtAll)
{
    Write("old", "old");
    chmod((m_folder / "old").c_str(), 0640);
    std::filesystem::create_symlink("old", m_folder / "link");
    {
        CReplacementFile file;
        ASSERT_TRUE(file.Open(Path("link")));
        file.Write("half", 4);
    } // never committed
    EXPECT_EQ(Read("old"), "old");
    {
        CReplacementFile file;
        ASSERT_TRUE(file.Open(Path("link")));
        file.Write("brand new", 9);
        EXPECT_EQ(Read("old"), "old");
        file.Commit();
        EXPECT_EQ(CauseOf([&] { file.Commit(); }), CFileException::invalidFile);
    }
    EXPECT_EQ(Read("old"), "brand new");
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder / "link"));
    EXPECT_EQ(static_cast<int>(std::filesystem::status(m_folder / "old").permissions()), 0640);

    CReplacementFile file;
    CFileException exception;
    EXPECT_FALSE(file.Open(Path("."), &exception));
    EXPECT_EQ(exception.m_cause, CFileException::badPath);
    EXPECT_FALSE(file.Open(Path("missing/new"), &exception));
    EXPECT_EQ(exception.m_cause, CFileException::fileNotFound);
    ASSERT_TRUE(file.Open(Path("fresh")));
    std::filesystem::create_directory(m_folder / "fresh"); // meanwhile something else took the name
    EXPECT_NE(CauseOf([&] { file.Commit(); }), -1);
    std::filesystem::remove(m_folder / "fresh");
    EXPECT_EQ(Names(), "link old "); // nothing is left over
    ASSERT_TRUE(file.Open(L"/dev/full"));
    EXPECT_EQ(CauseOf([&] { file.Write("x", 1); }), CFileException::diskFull);
}

} // namespace
