// Loading files: encodings, marks, cut and missing files.
#include "xml/Markup.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

class MarkupLoad : public testing::Test
{
protected:
    MarkupLoad()
    {
        std::string name = std::filesystem::temp_directory_path() / "splitframe-markup-XXXXXX";
        m_directory = mkdtemp(name.data());
    }
    ~MarkupLoad() override { std::filesystem::remove_all(m_directory); }

    CString Path(const std::string& name) const { return CString((m_directory / name).c_str()); }
    CString Write(const std::string& bytes) const
    {
        const CString strPath = Path("file.xml");
        std::ofstream(strPath.ToUtf8(), std::ios::binary) << bytes;
        return strPath;
    }

    std::filesystem::path m_directory;
};

std::string Utf16(const std::wstring& text)
{
    std::string bytes;
    for (const wchar_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

using Failure = CMarkup::Failure;

TEST_F(MarkupLoad, TellsEncodings)
{
    struct Case
    {
        const char* what;
        std::string bytes;
        Failure failure;
        CString strDoc; // "before" when the file was refused
    };
    const std::string long16 = Utf16(L"<a>abcdefghijklmnopqrstuvwxyz</a>");
    const std::string chinese = "<a>" + std::string("\xE4\xB8\xAD\xE6\x96\x87") + "</a>";
    std::string manyChinese = "<a>";
    for (int i = 0; i < 100; ++i)
        manyChinese += "\xE4\xB8\xAD";
    manyChinese += "</a>";
    const Case cases[] = {
        {"UTF-8", chinese, Failure::None, L"<a>\x4E2D\x6587</a>"},
        {"UTF-8, three bytes a character", manyChinese, Failure::None,
         L"<a>" + CString(L'\x4E2D', 100) + L"</a>"},
        {"UTF-8 with a mark", "\xEF\xBB\xBF<a/>", Failure::None, L"\xFEFF<a/>"},
        {"outside the basic plane", "<a>\xF0\x9F\x98\x80</a>", Failure::None, L"<a>\U0001F600</a>"},
        {"bytes that are no UTF-8", "<a>\xE9\xFF\xC0\x80</a>", Failure::None, L"<a>\xE9\xFF\xC0\x80</a>"},
        {"UTF-16 with mark", "\xFF\xFE" + Utf16(L"<a>\x4E2D</a>"), Failure::None, L"<a>\x4E2D</a>"},
        {"UTF-16, odd last byte", "\xFF\xFE" + Utf16(L"<a/>") + "x", Failure::None, L"<a/>x"},
        {"UTF-16, one odd byte", "\xFF\xFEx", Failure::Malformed, L"x"},
        {"mark only", "\xFF\xFE", Failure::Malformed, L""},
        {"short UTF-16 without mark", Utf16(L"<a></a>"), Failure::Malformed, L"<"},
        {"long UTF-16 without mark", long16, Failure::TextCut, L"before"},
        {"UTF-16 cut by a zero", "\xFF\xFE" + Utf16(L"<a/>") + std::string(100, '\0'), Failure::TextCut,
         L"before"},
        {"text with zeros at the end", "<a/>" + std::string(30, '\0'), Failure::None, L"<a/>"},
        {"empty", "", Failure::Malformed, L""},
        {"one byte", "<", Failure::Malformed, L"<"},
        {"zeros", std::string(1000, '\0'), Failure::TextCut, L"before"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CMarkup markup(L"before");
        EXPECT_EQ(markup.Load(Write(c.bytes)), c.failure == Failure::None ? 1 : 0);
        EXPECT_EQ(markup.GetFailure(), c.failure);
        EXPECT_EQ(markup.GetFailureText().IsEmpty(), c.failure == Failure::None);
        EXPECT_EQ(markup.GetDoc().ToUtf8(), c.strDoc.ToUtf8());
    }
}

TEST_F(MarkupLoad, LongUtf16WithoutMarkIsRefusedFromFortyFourBytes)
{
    for (int nBytes = 38; nBytes < 50; nBytes += 2) {
        SCOPED_TRACE(nBytes);
        CMarkup markup(L"<before/>");
        markup.Load(Write(Utf16(std::wstring(static_cast<std::size_t>(nBytes / 2), L'x'))));
        EXPECT_EQ(markup.GetFailure() == Failure::TextCut, nBytes >= 44);
        EXPECT_EQ(markup.IsWellFormed(), nBytes >= 44);
    }
}

TEST_F(MarkupLoad, KeepsTheDocumentWhenThereIsNoFile)
{
    CMarkup markup(L"<before/>");
    ASSERT_TRUE(markup.FindElem());
    for (const CString& strPath : {Path("missing.xml"), Path("missing/file.xml"), CString(), Path(".")}) {
        SCOPED_TRACE(strPath.ToUtf8());
        EXPECT_EQ(markup.Load(strPath), 0);
        EXPECT_EQ(markup.GetFailure(), Failure::CannotRead);
        EXPECT_FALSE(markup.GetFailureText().IsEmpty());
        EXPECT_EQ(markup.GetFailurePos(), -1);
        EXPECT_TRUE(markup.GetTagName() == L"before"); // the cursors stay too
    }
    EXPECT_EQ(markup.Load(nullptr), 0);
}

TEST_F(MarkupLoad, EveryPrefixOfAFile)
{
    const std::string narrow = "<?xml?><r a='\xE4\xB8\xAD'>\xF0\x9F\x98\x80\xC3\xA9</r>";
    const std::string wide = "\xFF\xFE" + Utf16(L"<r a='\x4E2D'>\xD83D\xDE00</r>");
    for (const std::string& bytes : {narrow, wide}) {
        for (std::size_t n = 0; n <= bytes.size(); ++n) {
            SCOPED_TRACE(n);
            CMarkup markup;
            EXPECT_EQ(markup.Load(Write(bytes.substr(0, n))),
                      n == bytes.size() || (n == bytes.size() - 1 && bytes == wide) ? 1 : 0);
        }
    }
}

} // namespace
