// Markup reading by example: text in, what is found out.
#include "OpenMarkup.h"
#include "xml/TextPlace.h"

#include "platform/base/Exception.h"

#include <gtest/gtest.h>

namespace {

// The document as nested names: a(b c(d)), read by the public operations alone.
void Describe(CMarkup& markup, std::string& str)
{
    while (markup.FindElem(nullptr)) {
        str += (str.empty() || str.back() == '(' ? "" : " ") + markup.GetTagName().ToUtf8();
        str += "(";
        markup.IntoElem();
        Describe(markup, str);
        markup.OutOfElem();
        markup.ResetChildPos();
        if (str.back() == '(')
            str.pop_back();
        else
            str += ")";
    }
}

TEST(Markup, TellsElementsAndErrors)
{
    struct Case
    {
        const wchar_t* text;
        const char* elements;
        const char* error;
        int nPos; // of the failure
    };
    const Case cases[] = {
        {L"<a><b/><c>x</c></a>", "a(b c)", "", -1},
        {L"text <?xml v?><!-- <x> --><!DOCTYPE a [ <!ELEMENT a ANY> ]>\n<a/>", "a", "", -1},
        {L"<a/><b/>", "a", "", -1},
        {L"<a><![CDATA[</a>]]><!-- </a> --><b></b></a>", "a(b)", "", -1},
        {L"</ a >", "", "", 0},
        {L"", "", "", -1},
        {L"<a></ a >", "a", "", -1},
        {L"<a[1]></a>", "a[1]", "", -1},
        {L"<a></a[1]>", "", "End tag does not correspond to a", 3},
        {L"<a x='1>2'></a>", "a", "", -1},
        {L"<a", "", "End of tag not found", 0},
        {L"x", "", "BaseUnit tag not found", 1},
        {L"<a>", "", "BaseUnit tag not found", 0},
        {L"<r><a><b></b>", "", "BaseUnit tag not found", 3},
        {L"<a></b>", "", "End tag does not correspond to a", 3},
        {L"<a></aa>", "", "End tag does not correspond to a", 3},
        {L"<aa></a>", "", "End tag does not correspond to aa", 4},
        {L"<a></>", "", "End tag does not correspond to a", 3},
        {L"<a></a", "", "End tag not completed for BaseUnit a", 3},
        {L"<a></a 'x>", "", "End tag not completed for BaseUnit a", 3},
        {L"<a></a 'x>' y>", "a", "", -1},
        {L" < ", "", "Abrupt end within tag", 1},
        {L"<'a'>", "", "Tag starts with quote", 0},
        {L"<a><!-- x</a>", "", "Invalid node", 3},
        {L"< ?a?><b/>", "", "Invalid node", 0},
        {L"< !a><b/>", "", "Invalid node", 0},
        {L"<?>?><b/>", "b", "", -1},
        {L"<!-><b/>", "", "Invalid node", 0},
        {L"<!-->-><b/>", "b", "", -1},
        {L"<!DOCTYPE 'a>' [ > ] ><b/>", "b", "", -1},
        {L"<!DOCTYPE [ ><b/>", "", "Invalid node", 0},
        {L"<\x4E2D\x6587 \x5C5E='v'>\x503C</\x4E2D\x6587>", "\xE4\xB8\xAD\xE6\x96\x87", "", -1},
        {L"<\U0001F600></\U0001F600>", "\xF0\x9F\x98\x80", "", -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8());
        CMarkup markup;
        EXPECT_EQ(markup.SetDoc(c.text), *c.elements != 0);
        EXPECT_EQ(markup.IsWellFormed(), *c.elements != 0);
        std::string elements;
        Describe(markup, elements);
        EXPECT_EQ(elements, c.elements);
        EXPECT_EQ(markup.GetError().ToUtf8(), c.error);
        EXPECT_EQ(markup.GetFailurePos(), c.nPos);
        EXPECT_EQ(markup.GetFailureText().IsEmpty(), *c.elements != 0);
        EXPECT_TRUE(markup.GetDoc() == c.text);
    }
}

TEST(Markup, ValuesThatAreNoCharactersAreReplacedBeforeTheyAreCompared)
{
    for (const unsigned nStart : {0x80000000U, 0x110000U}) {
        SCOPED_TRACE(nStart);
        wchar_t szText[] = L"<xx a='1'></xx>";
        szText[1] = static_cast<wchar_t>(nStart);
        szText[12] = static_cast<wchar_t>(nStart + 1);
        CMarkup markup;
        EXPECT_TRUE(markup.SetDoc(szText));
        EXPECT_TRUE(markup.GetError().IsEmpty()); // nothing is left of how it looked before
        ASSERT_TRUE(markup.FindElem());
        EXPECT_TRUE(markup.GetAttrib(L"a") == L"1");
    }
}

TEST(Markup, ReadsAttributes)
{
    struct Case
    {
        const wchar_t* text;
        const wchar_t* name;
        const wchar_t* value;
    };
    const Case cases[] = {
        {L"<a x = 'v' y='w'/>", L"x", L"v"},
        {L"<a x = 'v' y='w'/>", L"y", L"w"},
        {L"<a x = 'v' y='w'/>", L"", L"x"},
        {L"<a x = 'v' y='w'/>", nullptr, L""},
        {L"<a x = 'v' y='w'/>", L"v", L""},
        {L"<a x=v y='w'/>", L"x", L""},
        {L"<a x=v y='w'/>", L"y", L"w"},
        {L"<a x='1>2'></a>", L"x", L"1>2"},
        {L"<a x=\"it's\" y='&lt;&amp;&gt;&apos;&quot;&#60;&'/>", L"x", L"it's"},
        {L"<a x=\"it's\" y='&lt;&amp;&gt;&apos;&quot;&#60;&'/>", L"y", L"<&>'\"&#60;&"},
        {L"<a x=''/>", L"x", L""},
        {L"<a x 'v' y='w'/>", L"x", L""},
        {L"<a x='v'/>", L"x=1", L"v"},
        {L"<a x='v'/>", L"xy", L""},
        {L"<a a='v'/>", L"a", L"v"},
        {L"<a><b x='v'/></a>", L"x", L""},
        {L"<a x/y='v'></a>", L"y", L""},
        {L"<a \U0001F600='v' \U0001F601='w'/>", L"\U0001F601", L"w"},
        {L"<a x='unclosed></a>", L"x", L"unclosed></a>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8() + " " + CString(c.name).ToUtf8());
        CMarkup markup(c.text);
        ASSERT_TRUE(markup.FindElem());
        EXPECT_EQ(markup.GetAttrib(c.name).ToUtf8(), CString(c.value).ToUtf8());
        markup.ResetPos();
        EXPECT_EQ(markup.GetAttrib(c.name).ToUtf8(), "");
    }
}

TEST(Markup, ReadsData)
{
    struct Case
    {
        const wchar_t* text;
        const wchar_t* data;
    };
    const Case cases[] = {
        {L"<a>&lt;&amp;&#60;</a>", L"<&&#60;"},
        {L"<a>  <![CDATA[<x>&lt;]]> tail</a>", L"<x>&lt;"},
        {L"<a>x<![CDATA[y]]></a>", L"x<![CDATA[y]]>"},
        {L"<a><![CDATA[]]></a>", L""},
        {L"<a/>", L""},
        {L"<a></a>", L""},
        {L"<a> x <!-- c --> </a>", L" x <!-- c --> "},
        {L"<a>x<b/></a>", L""},
        {L"<a>&l</a>", L"&l"},
        {L"<a>&lt</a>;", L"&lt"},
        {L"<a>&lt;</a>", L"<"},
        {L"<a>&amp;lt;</a>", L"&lt;"},
        {L"<a>\U0001F600 and on for more than short text</a>", L"\U0001F600 and on for more than short text"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8());
        CMarkup markup(c.text);
        ASSERT_TRUE(markup.FindElem());
        EXPECT_EQ(markup.GetData().ToUtf8(), CString(c.data).ToUtf8());
    }
}

TEST(Markup, CursorsMove)
{
    COpenMarkup markup(L"<r><a n='1'><x/><y>2</y></a><b/><a n='3'>d</a></r>");
    EXPECT_FALSE(markup.FindElem(L"a")); // only the root stands at document level
    EXPECT_TRUE(markup.FindElem(L"r"));
    EXPECT_FALSE(markup.FindElem());
    EXPECT_TRUE(markup.FindChildElem(L"a"));
    EXPECT_TRUE(markup.GetChildAttrib(L"n") == L"1");
    EXPECT_EQ(markup.GetChildElemPos(), 3);
    EXPECT_TRUE(markup.FindChildElem(L"a"));
    EXPECT_TRUE(markup.GetChildData() == L"d");
    EXPECT_FALSE(markup.FindChildElem(L"a"));
    EXPECT_TRUE(markup.GetChildAttrib(L"n") == L"3");
    markup.ResetChildPos();
    EXPECT_EQ(markup.GetChildElemPos(), -1);
    EXPECT_TRUE(markup.FindChildElem());
    EXPECT_TRUE(markup.IntoElem());
    EXPECT_TRUE(markup.GetTagName() == L"a");
    EXPECT_TRUE(markup.FindChildElem(L"y"));
    EXPECT_TRUE(markup.GetChildTagName() == L"y");
    EXPECT_TRUE(markup.OutOfElem());
    EXPECT_TRUE(markup.GetTagName() == L"r");
    EXPECT_TRUE(markup.FindChildElem()); // goes on behind the element just left
    EXPECT_TRUE(markup.GetChildTagName() == L"b");
    EXPECT_FALSE(markup.OutOfElem());

    markup.ResetPos();
    EXPECT_FALSE(markup.IntoElem());
    EXPECT_TRUE(markup.FindChildElem(L"b")); // takes the root first
    EXPECT_TRUE(markup.IntoElem());
    EXPECT_TRUE(markup.IntoElem());
    EXPECT_EQ(markup.m_nMainKind, 0);
    EXPECT_EQ(markup.GetElemPos(), -1);
    EXPECT_FALSE(markup.FindElem());
    markup.ResetMainPos();
    EXPECT_TRUE(markup.OutOfElem());
    EXPECT_TRUE(markup.GetTagName() == L"b");
}

TEST(Markup, RefusesEntriesOutsideTheTable)
{
    COpenMarkup markup(L"<a/>");
    for (const int i : {-1, 8, 1000}) {
        try {
            markup.x_FindElem(i, 0, nullptr);
            ADD_FAILURE() << i;
        } catch (CInvalidArgException* pException) {
            pException->Delete();
        }
    }
}

TEST(Markup, ScansNodesAndTokens)
{
    struct Case
    {
        const wchar_t* text;
        int nKind;
        int nEnd;
    };
    const Case cases[] = {
        {L"", 0, 0},
        {L"  ", 4, 2},
        {L" \n<", 4, 2},
        {L" x y<", 2, 4},
        {L"<a>", 1, 0},
        {L"</a>", 0, 0},
        {L"<", 0, 0},
        {L"<!", 0, 0},
        {L"<?x?>y", 16, 5},
        {L"<!-x-->y", 32, 7},
        {L"<![x]]>y", 8, 7},
        {L"<!A \">\" [>]>y", 64, 12},
        {L"<!A [x] >y", 0, 10},
        {L"<!A [ > ] >y", 64, 11},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8());
        COpenMarkup markup;
        COpenMarkup::TokenPos token(c.text);
        EXPECT_EQ(markup.x_ParseNode(token), c.nKind);
        EXPECT_EQ(token.nScanPos, c.nEnd);
    }
}

TEST(TextPlace, CountsLinesAndWholeCharacters)
{
    const CString strText(L"ab\r\nc\U0001F600d\n\re");
    const int places[][3] = {{0, 1, 1}, {2, 1, 3},  {4, 2, 1},  {5, 2, 2},  {7, 2, 3}, {8, 2, 4},
                             {9, 3, 1}, {10, 4, 1}, {11, 4, 2}, {99, 4, 2}, {-5, 1, 1}};
    for (const auto& place : places) {
        SCOPED_TRACE(place[0]);
        EXPECT_EQ(FindTextPlace(strText, place[0]).nLine, place[1]);
        EXPECT_EQ(FindTextPlace(strText, place[0]).nColumn, place[2]);
    }
}

} // namespace
