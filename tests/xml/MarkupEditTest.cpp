// Editing markup: what is written where, and that the table keeps describing the text exactly.
#include "OpenMarkup.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

// The rule that everything else stands on: a parse of the text finds what the edited table says.
void ExpectExact(const COpenMarkup& markup)
{
    const COpenMarkup fresh(markup.GetDoc());
    EXPECT_EQ(fresh.IsWellFormed(), markup.IsWellFormed());
    EXPECT_EQ(markup.Describe(), fresh.Describe()) << markup.GetDoc().ToUtf8();
}

TEST(MarkupEdit, WritesElementsAndAttributes)
{
    struct Case
    {
        const char* what;
        const wchar_t* before;
        std::function<bool(COpenMarkup&)> edit; // at the root, whose first child is the child position
        const wchar_t* after;                   // null: refused
    };
    const auto child = [](const wchar_t* pszName, const wchar_t* pszData = nullptr) {
        return [=](COpenMarkup& m) { return m.AddChildElem(pszName, pszData); };
    };
    const auto set = [](const wchar_t* pszName, const wchar_t* pszValue) {
        return [=](COpenMarkup& m) { return m.SetAttrib(pszName, pszValue); };
    };
    const Case cases[] = {
        {"a root", L"", [](COpenMarkup& m) { return m.AddElem(L"r"); }, L"<r/>\r\n"},
        {"a root behind a declaration", L"<?xml?>\r\n", [](COpenMarkup& m) { return m.AddElem(L"r", L"x"); },
         L"<?xml?>\r\n<r>x</r>\r\n"},
        {"a root behind a single character", L"x", [](COpenMarkup& m) { return m.AddElem(L"r"); },
         L"x\r\n<r/>\r\n"},
        {"a second root", L"<r/>", [](COpenMarkup& m) { return m.AddElem(L"r"); }, nullptr},
        {"a child opens an empty parent", L"<r/>", child(L"x"), L"<r>\r\n<x/>\r\n</r>"},
        {"the parent keeps its attributes", L"<r[1] a='/'/>", child(L"x", L"d"),
         L"<r[1] a='/'>\r\n<x>d</x>\r\n</r[1]>"},
        {"a child of a parent with nothing inside", L"<a></a>", child(L"x"), L"<a>\r\n<x/>\r\n</a>"},
        {"a child behind text", L"<a>abc</a>", child(L"x"), L"<a>abc<x/>\r\n</a>"},
        {"a child behind white space", L"<a>\n  </a>", child(L"x"), L"<a>\n  <x/>\r\n</a>"},
        {"a child behind the child position", L"<a><b/> <c/></a>", child(L"x"), L"<a><b/> <x/>\r\n<c/></a>"},
        {"a child behind the child position, text follows", L"<a><b/> t<c/></a>", child(L"x"),
         L"<a><b/><x/>\r\n t<c/></a>"},
        {"a child at the end", L"<a><b/> <c/>t</a>",
         [](COpenMarkup& m) {
             m.ResetChildPos();
             return m.AddChildElem(L"x");
         },
         L"<a><b/> <c/>t<x/>\r\n</a>"},
        {"a child in front of the child position", L"<a> <b/></a>",
         [](COpenMarkup& m) { return m.x_AddElem(L"x", nullptr, true, true); }, L"<a> <x/>\r\n<b/></a>"},
        {"a sibling of a child", L"<a><b/><c/></a>",
         [](COpenMarkup& m) {
             m.IntoElem();
             return m.AddElem(L"x") && m.GetTagName() == L"x";
         },
         L"<a><b/><x/>\r\n<c/></a>"},
        {"data is encoded, quotes are not", L"<a></a>", child(L"x", L"<&>'\""),
         L"<a>\r\n<x>&lt;&amp;&gt;'\"</x>\r\n</a>"},
        {"a new attribute", L"<a/>", set(L"x", L"<&>'\""), L"<a x=\"&lt;&amp;&gt;&apos;&quot;\"/>"},
        {"a second attribute", L"<a x='1'></a>", set(L"y", nullptr), L"<a x='1' y=\"\"></a>"},
        {"an attribute changes between its own quotes", L"<a x = '1' y='2'/>", set(L"x", L"it's"),
         L"<a x = 'it&apos;s' y='2'/>"},
        {"a whole character", L"<a/>", set(L"x", L"\U0001F600"), L"<a x=\"\U0001F600\"/>"},
        {"no attribute without a name", L"<a x='1'/>", set(L"", L"v"), nullptr},
        {"no attribute with a null name", L"<a x='1'/>", set(nullptr, L"v"), nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        COpenMarkup markup(c.before);
        if (markup.FindElem())
            markup.FindChildElem();
        EXPECT_EQ(c.edit(markup), c.after != nullptr);
        EXPECT_EQ(markup.GetDoc().ToUtf8(), CString(c.after ? c.after : c.before).ToUtf8());
        ExpectExact(markup);
    }
    CMarkup unnamed; // names are not checked
    EXPECT_TRUE(unnamed.AddElem(nullptr, L"x"));
    EXPECT_TRUE(unnamed.GetDoc() == L"<>x</>\r\n");
}

TEST(MarkupEdit, MovesTheCursorsToWhatIsNew)
{
    COpenMarkup markup;
    EXPECT_FALSE(markup.AddChildElem(L"x"));
    EXPECT_FALSE(markup.SetAttrib(L"x", L"1"));
    ASSERT_TRUE(markup.AddElem(L"root"));
    EXPECT_TRUE(markup.IsWellFormed());
    EXPECT_TRUE(markup.GetTagName() == L"root");
    EXPECT_FALSE(markup.SetChildAttrib(L"x", L"1"));
    ASSERT_TRUE(markup.AddChildElem(L"item", L"a<b"));
    EXPECT_TRUE(markup.GetTagName() == L"root");
    EXPECT_TRUE(markup.GetChildData() == L"a<b");
    EXPECT_TRUE(markup.SetChildAttrib(L"id", L"x&y"));
    EXPECT_TRUE(markup.GetChildAttrib(L"id") == L"x&y");
    EXPECT_TRUE(markup.AddChildAttrib(L"id", L"2"));
    EXPECT_TRUE(markup.GetChildAttrib(L"id") == L"2");
    markup.IntoElem();
    markup.IntoElem();
    EXPECT_FALSE(markup.SetAttrib(L"x", L"1")); // inside item, without a main element
    EXPECT_TRUE(markup.AddElem(L"deep"));
    EXPECT_TRUE(markup.OutOfElem());
    EXPECT_TRUE(markup.AddElem(L"item"));
    EXPECT_TRUE(markup.OutOfElem());
    EXPECT_FALSE(markup.AddElem(L"root"));
    EXPECT_TRUE(markup.GetDoc() ==
                L"<root>\r\n<item id=\"2\">a&lt;b<deep/>\r\n</item>\r\n<item/>\r\n</root>\r\n");
    ExpectExact(markup);
}

TEST(MarkupEdit, CopiesKeepTextTableAndCursors)
{
    COpenMarkup markup(L"<a");
    markup.SetDoc(L"<a><b x='1'/><c/></a>");
    markup.FindChildElem(L"b");
    COpenMarkup copy(markup);
    EXPECT_TRUE(copy.GetError().IsEmpty());
    EXPECT_FALSE(markup.GetError().IsEmpty());
    copy.SetChildAttrib(L"x", L"longer than short text can be");
    EXPECT_TRUE(markup.GetChildAttrib(L"x") == L"1");
    copy.AddChildElem(L"y");
    ExpectExact(copy);
    ExpectExact(markup);

    COpenMarkup other(L"</");
    other.SetDoc(L"<a>");
    other = copy;
    EXPECT_TRUE(other.GetError() == L"BaseUnit tag not found"); // its own
    EXPECT_EQ(other.m_aElemPos.GetSize(), copy.m_aElemPos.GetSize());
    EXPECT_TRUE(other.GetChildTagName() == L"y");
    ExpectExact(other);
    const CString strBefore = other.GetDoc();
    other = *&other;
    EXPECT_TRUE(other.GetDoc() == strBefore);
    EXPECT_TRUE(other.GetChildTagName() == L"y");
}

TEST(MarkupEdit, TakesItsOwnTextAsNameAndValue)
{
    COpenMarkup markup(L"<a b='1'>text</a>");
    const CString& strDoc = markup.m_strDoc;
    EXPECT_TRUE(markup.SetDoc(strDoc));
    markup.FindElem();
    EXPECT_TRUE(markup.SetAttrib(L"b", strDoc));
    EXPECT_TRUE(markup.GetAttrib(L"b") == L"<a b='1'>text</a>");
    EXPECT_TRUE(markup.AddChildElem(L"c", strDoc.GetString() + 1));
    markup.x_DocChange(0, 0, strDoc);
    ExpectExact(COpenMarkup(strDoc));
    markup.x_DocChange(-5, 1 << 30, L"<a/>");
    EXPECT_TRUE(markup.GetDoc() == L"<a/>");
}

// One random step; what was written must read back at once.
void Step(COpenMarkup& markup, std::mt19937& random)
{
    static const wchar_t* const names[] = {L"a", L"b", L"c", L"long-name.of_an:element"};
    static const wchar_t* const values[] = {nullptr,
                                            L"",
                                            L"1",
                                            L" ",
                                            L"<&>'\"",
                                            L"&amp;",
                                            L"]]>",
                                            L"<![CDATA[x]]>",
                                            L"line\r\nend\t",
                                            L"\U0001F600",
                                            L"\xD83D",
                                            L"a value that is longer than any short text",
                                            L"/",
                                            L"&lt",
                                            L"=\"x\""};
    const wchar_t* pszName = names[random() % std::size(names)];
    const wchar_t* pszValue = values[random() % std::size(values)];
    const CString strValue(pszValue);
    switch (random() % 14) {
    case 0:
        if (markup.AddElem(pszName, pszValue)) {
            EXPECT_TRUE(markup.GetData() == strValue);
        }
        break;
    case 1:
    case 2:
        if (markup.AddChildElem(pszName, pszValue)) {
            EXPECT_TRUE(markup.GetChildData() == strValue);
        }
        break;
    case 3:
        markup.x_AddElem(pszName, pszValue, true, random() % 2 != 0);
        break;
    case 4:
    case 5:
        if (markup.SetAttrib(pszName, pszValue)) {
            EXPECT_TRUE(markup.GetAttrib(pszName) == strValue);
        }
        break;
    case 6:
        if (markup.SetChildAttrib(pszName, pszValue)) {
            EXPECT_TRUE(markup.GetChildAttrib(pszName) == strValue);
        }
        break;
    case 7:
        markup.FindElem();
        break;
    case 8:
        markup.FindChildElem();
        break;
    case 9:
        markup.IntoElem();
        break;
    case 10:
        markup.OutOfElem();
        break;
    case 11:
        markup.ResetChildPos();
        break;
    case 12:
        random() % 4 == 0 ? markup.ResetMainPos() : void();
        break;
    default:
        random() % 8 == 0 ? markup.ResetPos() : void();
    }
}

TEST(MarkupEdit, AnyEditsLeaveAnExactTable)
{
    static const wchar_t* const texts[] = {
        L"",
        L"<?xml version='1.0'?>\r\n<!-- <x> -->",
        L"<a/>",
        L"<r><a b='1'/><!-- <c/> -->t<b>text</b>  <c></c>\n</r><!-- end -->",
        L"<a[1]><![CDATA[</a>]]></a><z/>",
        L"<r d=x b = \"2\" e><a  /><a\n/></ r >",
    };
    for (unsigned nSeed = 0; nSeed < 3000; ++nSeed) {
        std::mt19937 random(nSeed);
        SCOPED_TRACE("seed " + std::to_string(nSeed));
        COpenMarkup markup(texts[nSeed % std::size(texts)]);
        for (auto nSteps = 1 + random() % 40; nSteps > 0; --nSteps)
            Step(markup, random);
        ExpectExact(markup);
        ExpectExact(COpenMarkup(markup));
        if (HasFailure())
            return;
    }
}

TEST(MarkupEdit, TagsCutByARawBracketStayInsideTheText)
{
    // The first '>' ends a tag, also inside a value. Editing such a tag leaves positions that fit no text;
    // whatever is done then stays inside the document.
    static const wchar_t* const texts[] = {L"<a b='1>2'></a>", L"<a b='1/>2' c='>'/>",
                                           L"<r><a b='><c b='/></a></r>", L"<r><a b='></a><b/></r>",
                                           L"<r><a b='>'>x</a><c a='1'/></r>"};
    for (unsigned nSeed = 0; nSeed < 2000; ++nSeed) {
        std::mt19937 random(nSeed);
        COpenMarkup markup(texts[nSeed % std::size(texts)]);
        for (int i = 0; i < 30; ++i) {
            for (const wchar_t* pszName : {L"b", L"c"}) {
                random() % 2 != 0 ? markup.SetAttrib(pszName, L"") : markup.SetChildAttrib(pszName, L"x");
            }
            random() % 3 == 0 ? markup.AddChildElem(L"n", L"d") : markup.FindChildElem(L"c");
            random() % 3 == 0 ? markup.IntoElem() : markup.FindElem();
            markup.GetData();
            markup.GetChildData();
            markup.GetTagName();
            markup.GetChildAttrib(L"a");
        }
        markup.Describe();
    }
}

} // namespace
