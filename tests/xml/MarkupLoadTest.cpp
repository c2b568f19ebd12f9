// Loading and saving files: encodings, marks, cut and missing files, files that can not be written.
#include "platform/base/Exception.h"
#include "xml/FileText.h"
#include "xml/Markup.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class MarkupLoad : public testing::Test
{
protected:
    CString Path(const char* pszName) const { return m_folder.Path(pszName); }
    CString Write(const std::string& bytes) const
    {
        m_folder.Write("file.xml", bytes);
        return Path("file.xml");
    }

    test::TempFolder m_folder;
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

TEST_F(MarkupLoad, SavesUtf16)
{
    CMarkup markup(L"<a>\x4E2D\U0001F600</a>\r\n");
    markup.FindElem();
    markup.AddChildElem(L"b", CString(L'\xFF41', 100000));
    const CString strPath = Write("what was there before");
    EXPECT_EQ(markup.Save(strPath), 1);
    const std::string bytes = Utf16(std::wstring(markup.GetDoc().View()));
    EXPECT_EQ(bytes.size(), 2U * static_cast<unsigned>(markup.GetDoc().GetLength()));
    EXPECT_TRUE(m_folder.Read("file.xml") == bytes);
    markup.SaveWithMark(strPath);
    EXPECT_TRUE(m_folder.Read("file.xml") == "\xFF\xFE" + bytes);
}

TEST_F(MarkupLoad, ReadsBackWhatIsSavedWithTheMark)
{
    const CString strPath = Path("file.xml");
    for (const wchar_t* pszText : {L"<a/>", L"\xFEFF<a/>", L"<a b='\xD83D \U0001F600\r\n'>\x80</a>",
                                   L"<a>a text that is longer than forty-four bytes</a>"}) {
        SCOPED_TRACE(CString(pszText).ToUtf8());
        CMarkup(pszText).SaveWithMark(strPath);
        CMarkup markup;
        EXPECT_EQ(markup.Load(strPath), 1);
        EXPECT_TRUE(markup.GetDoc() == pszText);
    }
    CMarkup().SaveWithMark(strPath);
    CMarkup empty(L"<before/>");
    empty.Load(strPath);
    EXPECT_TRUE(empty.GetDoc().IsEmpty());
}

TEST_F(MarkupLoad, SavingWhereItIsNotPossibleThrowsAndKeepsTheDocument)
{
    CMarkup markup(L"<a b='1'/>");
    markup.FindElem();
    for (const CString& strPath : {Path("missing/file.xml"), Path("."), CString(), CString(L"/dev/full")}) {
        SCOPED_TRACE(strPath.ToUtf8());
        for (const bool bMark : {false, true}) {
            try {
                bMark ? markup.SaveWithMark(strPath) : static_cast<void>(markup.Save(strPath));
                ADD_FAILURE() << "saved";
            } catch (CFileException* pException) {
                pException->Delete();
            }
        }
        EXPECT_EQ(CMarkup().Save(strPath), 1); // nothing to write, nothing to fail
    }
    EXPECT_TRUE(markup.GetAttrib(L"b") == L"1");
    EXPECT_EQ(m_folder.Names(), ""); // no half-written file stays behind
}

// The file's bytes with another value for attribute r of every b in the root.
std::string SetRates(const CString& strPath, const wchar_t* pszValue)
{
    CMarkup markup;
    markup.Load(strPath);
    std::vector<TextEdit> edits;
    while (markup.FindChildElem(L"b"))
        EXPECT_TRUE(markup.PlanChildAttrib(L"r", pszValue, edits.emplace_back()));
    return FileText(strPath).Apply(edits);
}

TEST_F(MarkupLoad, ChangesKeepEveryOtherByteOfTheFile)
{
    struct Case
    {
        const char* what;
        std::string before;
        std::string after;
    };
    const std::string emoji = "\xF0\x9F\x98\x80";
    const Case cases[] = {
        {"values and a new attribute", "<a>\t<b  r = '1' /><c r='1'/><!-- x --><b></b> </a >\n",
         "<a>\t<b  r = '&lt;\xC3\xA9' /><c r='1'/><!-- x --><b r=\"&lt;\xC3\xA9\"></b> </a >\n"},
        {"a mark and long characters", "\xEF\xBB\xBF<a " + emoji + "='\xE4\xB8\xAD'><b r=''/></a>" + emoji,
         "\xEF\xBB\xBF<a " + emoji + "='\xE4\xB8\xAD'><b r='&lt;\xC3\xA9'/></a>" + emoji},
        {"bytes that are no UTF-8", "<a \xE9='\xF0\x9F\x98'>\xFF<b r='\xC0\x80'/></a>\xE9",
         "<a \xE9='\xF0\x9F\x98'>\xFF<b r='&lt;\xC3\xA9'/></a>\xE9"},
        {"zeros at the end", std::string("<a><b r='1'/></a>\0\0x\0", 21),
         std::string("<a><b r='&lt;\xC3\xA9'/></a>\0\0x\0", 26)},
        {"UTF-16, odd last byte", "\xFF\xFE" + Utf16(L"<a>\xD83D\xDE00\xD800<b r='12'/></a>") + "x",
         "\xFF\xFE" + Utf16(L"<a>\xD83D\xDE00\xD800<b r='&lt;\xE9'/></a>") + "x"},
        {"nothing to change", "<a/>\xFF", "<a/>\xFF"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(SetRates(Write(c.before), L"<\xE9"), c.after);
    }
}

TEST(MarkupPlan, TellsWhatSettingAnAttributeDoes)
{
    for (const wchar_t* pszText : {L"<a/>", L"<a x='1' y='2'></a>", L"<a y='/' />", L"<a b x=1>x</a>"}) {
        SCOPED_TRACE(CString(pszText).ToUtf8());
        CMarkup markup(pszText);
        TextEdit edit;
        EXPECT_FALSE(markup.PlanAttrib(L"x", L"v", edit));
        markup.FindElem();
        ASSERT_TRUE(markup.PlanAttrib(L"x", L"it's", edit));
        EXPECT_FALSE(markup.PlanAttrib(nullptr, L"v", edit));
        EXPECT_FALSE(markup.PlanChildAttrib(L"x", L"v", edit));
        const CString strPlanned =
            markup.GetDoc().Left(edit.nPos) + edit.strText + markup.GetDoc().Mid(edit.nPos + edit.nCount);
        markup.SetAttrib(L"x", L"it's");
        EXPECT_TRUE(markup.GetDoc() == strPlanned);
    }
    for (const wchar_t* pszText : {L"<a x='1>2'></a>", L"<a x='>'/>", L"<a x='1></a>"}) {
        CMarkup markup(pszText);
        markup.FindElem();
        TextEdit edit;
        EXPECT_FALSE(markup.PlanAttrib(L"x", L"v", edit)) << "what belongs to the tag is not certain";
    }
}

} // namespace
