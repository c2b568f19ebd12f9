// Laws of markup reading: the same result as a direct transcription of the grammar on random text, no crash
// on any prefix, and cost that grows no faster than the text.
#include "OpenMarkup.h"
#include "ReferenceParser.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <time.h>

namespace {

// The parser must agree with the transcription: result, message, table size and every entry in use.
void Compare(COpenMarkup& markup, ReferenceParser& reference, const std::wstring& text)
{
    const bool bResult = markup.SetDoc(text.c_str());
    ASSERT_EQ(bResult, reference.SetDoc(text));
    ASSERT_EQ(std::wstring(markup.GetError().View()), reference.strError);
    ASSERT_EQ(markup.m_iNextFree, reference.iNextFree);
    ASSERT_EQ(static_cast<std::size_t>(markup.m_aElemPos.GetSize()), reference.nTableSize);
    for (int i = 0; i < reference.iNextFree; ++i) {
        const auto& e = markup.m_aElemPos[i];
        const ReferenceParser::Elem elem{e.nStartTagLeft, e.nStartTagRight, e.nEndTagLeft, e.nEndTagRight,
                                         e.iParent,       e.iFirstChild,    e.iNextSibling};
        ASSERT_EQ(elem, reference.At(i)) << "entry " << i;
    }
}

std::wstring RandomText(std::mt19937& random)
{
    static const wchar_t* const pieces[] = {
        L"<",   L">",    L"/",    L"<a>",    L"</a>", L"<b>",  L"</b>",  L"<a/>",       L"<b x='1'/>", L"a",
        L" ",   L"'",    L"\"",   L"<!--",   L"-->",  L"<![",  L"]]>",   L"<?",         L"?>",         L"<!D",
        L"[",   L"]",    L"=",    L"<a[1]>", L"!",    L"?",    L"\\",    L"</ a \t>",   L"text",       L"<>",
        L"</>", L"<= >", L"</=>", L"\x4E2D", L"\n",   L"<ab>", L"</ab>", L"</a b 'c'>", L"]",          L"-",
    };
    std::wstring text;
    const bool bRoot = random() % 2 != 0;
    for (auto nPieces = random() % 14; nPieces > 0; --nPieces)
        text += pieces[random() % std::size(pieces)];
    return bRoot ? L"<r>" + text + L"</r>" : text;
}

// Properly nested text, so that deep and wide tables are compared too.
void RandomElement(std::mt19937& random, std::wstring& text, int nDepth)
{
    static const wchar_t* const names[] = {L"a", L"bc", L"d[2]"};
    static const wchar_t* const ends[] = {L"a", L"bc", L"d"};
    const auto n = random() % 3;
    text += std::wstring(L"<") + names[n] + (random() % 3 == 0 ? L" x='y'" : L"");
    if (random() % 4 == 0) {
        text += L"/>";
        return;
    }
    text += L">";
    for (auto nChildren = nDepth > 0 ? random() % 4 : 0; nChildren > 0; --nChildren) {
        text += random() % 4 == 0 ? L"<!-- c -->" : L" ";
        RandomElement(random, text, nDepth - 1);
    }
    text += std::wstring(L"</") + ends[n] + L">";
}

TEST(MarkupLaws, AgreesWithTheTranscriptionOnRandomText)
{
    COpenMarkup markup;
    ReferenceParser reference;
    for (unsigned nSeed = 0; nSeed < 40000; ++nSeed) {
        std::mt19937 random(nSeed);
        std::wstring text;
        if (nSeed % 8 == 0)
            RandomElement(random, text, 5);
        else
            text = RandomText(random);
        SCOPED_TRACE("seed " + std::to_string(nSeed) + ": " + CString(text.c_str()).ToUtf8());
        Compare(markup, reference, text);
        if (HasFatalFailure())
            return;
    }
}

TEST(MarkupLaws, ParsingAnywhereGivesTheSameTable)
{
    // x_ParseElem called by a subclass searches the text itself; SetDoc has an index. Both must agree.
    const wchar_t* text = L"<r> <a><b x='1'/>t</a><!-- c --><c></c></r>";
    COpenMarkup whole(text);
    COpenMarkup again(text);
    again.m_iNextFree = 1;
    again.m_aElemPos[0] = {};
    EXPECT_EQ(again.x_ParseElem(0), 1);
    ASSERT_EQ(again.m_iNextFree, whole.m_iNextFree);
    for (int i = 1; i < whole.m_iNextFree; ++i)
        EXPECT_EQ(again.Entry(i), whole.Entry(i));
}

TEST(MarkupLaws, EveryPrefixEndsCleanly)
{
    const std::wstring text =
        L"<?xml version=\"1.0\"?><!DOCTYPE r [ <!ELEMENT r ANY> ]>\n<r>\n  <unit name='a&amp;b' x = \"2\"/>\n"
        L"  <!-- note --><data>  <![CDATA[<x>]]></data>\U0001F600<c>&lt;x&gt;</c >\n</r>\n";
    ReferenceParser reference;
    COpenMarkup markup;
    const CString strUnits(text.c_str());
    for (int n = 0; n <= strUnits.GetLength(); ++n) {
        SCOPED_TRACE(n);
        Compare(markup, reference, std::wstring(strUnits.Left(n).View()));
        EXPECT_EQ(markup.IsWellFormed(), n >= strUnits.GetLength() - 1);
        for (int i = 1; i < markup.m_iNextFree; ++i)
            markup.x_TextFromDoc(markup.m_aElemPos[i].nStartTagLeft, n);
    }
}

// A tag with attributes in all forms, most of them plain.
std::wstring RandomTag(std::mt19937& random)
{
    static const wchar_t* const names[] = {L"a",   L"ab", L"b",    L"a[b",  L"MIN",
                                           L"MAX", L"x1", L"a\\b", L"\xE9", L"\U0001F600"};
    static const wchar_t* const forms[] = {L"=", L"=",   L"=", L"=",  L"=",  L"=",
                                           L"=", L" = ", L"",  L"=/", L"==", L"\\="};
    static const wchar_t* const values[] = {L"'1'",
                                            L"\"it's\"",
                                            L"''",
                                            L"'eleven char'",
                                            L"'twelve chars'",
                                            L"'a &amp; b'",
                                            L"\"{5F1D2A30-8C41-4D77-A5B2-000000000001}\"",
                                            L"bare",
                                            L"'1>2'",
                                            L"'open"};
    static const wchar_t* const spaces[] = {L" ", L" ", L" ", L" ", L" ", L"\n\t", L"  ", L""};
    const auto pick = [&random](const auto& pieces) { return pieces[random() % std::size(pieces)]; };
    std::wstring text = random() % 8 == 0 ? L"< r" : L"<r";
    for (auto nAttributes = random() % 8; nAttributes > 0; --nAttributes) {
        text += pick(spaces);
        text += pick(names);
        text += pick(forms);
        text += random() % 16 == 0 ? pick(values) : values[random() % 7];
    }
    return text + (random() % 2 == 0 ? L"></r>" : L"/>");
}

TEST(MarkupLaws, ValuesReadInAnyOrderAreThoseOfAScan)
{
    static const wchar_t* const asked[] = {L"a",  L"ab",         L"b",    L"a[b", L"MIN",  L"MAX",
                                           L"x1", L"a\\b",       L"\xE9", L"a=1", L"ab/x", L"MIN a",
                                           L"",   L"\U0001F600", L"=",    L"M"};
    for (unsigned nSeed = 0; nSeed < 30000; ++nSeed) {
        std::mt19937 random(nSeed);
        COpenMarkup markup(RandomTag(random).c_str());
        if (!markup.FindElem())
            continue;
        for (int nReads = 0; nReads < 12; ++nReads) {
            const wchar_t* pszName = asked[random() % std::size(asked)];
            ASSERT_EQ(markup.GetAttrib(pszName).ToUtf8(), markup.ScannedAttrib(pszName).ToUtf8())
                << "seed " << nSeed << ", read " << nReads << " of " << CString(pszName).ToUtf8() << " in "
                << markup.GetDoc().ToUtf8();
        }
    }
}

TEST(MarkupLaws, ATagWithMoreAttributesThanAreNotedIsReadWhole)
{
    std::wstring text = L"<r";
    for (int n = 0; n < 80; ++n)
        text += L" " + std::wstring(1, L'a' + n / 26) + std::wstring(1, L'a' + n % 26) + L"='" +
                std::to_wstring(n) + L"'";
    COpenMarkup markup((text + L"/>").c_str());
    ASSERT_TRUE(markup.FindElem());
    for (const int nStep : {1, 79, 37}) { // forwards, backwards, to and fro
        for (int n = 0, i = 0; i < 80; ++i, n = (n + nStep) % 80) {
            const wchar_t szName[] = {static_cast<wchar_t>(L'a' + n / 26),
                                      static_cast<wchar_t>(L'a' + n % 26), 0};
            ASSERT_EQ(markup.GetAttrib(szName).ToUtf8(), std::to_string(n));
        }
        ASSERT_TRUE(markup.GetAttrib(L"zz").IsEmpty());
    }
}

TEST(MarkupLaws, BracketsStandAnywhereInTheIndex)
{
    // One tag moved across the borders of the index's words.
    for (int nPadding = 0; nPadding < 200; ++nPadding) {
        SCOPED_TRACE(nPadding);
        const CString strPadding(L'.', nPadding);
        COpenMarkup markup(strPadding + L"<a" + CString(L' ', nPadding) + L">x</a>");
        ASSERT_TRUE(markup.FindElem(L"a"));
        EXPECT_EQ(markup.GetElemPos(), nPadding);
        EXPECT_TRUE(markup.GetData() == L"x");
    }
}

TEST(MarkupLaws, CharactersLikeBracketsAreNone)
{
    // Values whose low bits look like '<' or '>' once they are narrowed.
    for (const wchar_t ch : {L'\x013C', L'\x3C00', L'\x3C3C', L'\xFF3C', L'\x8000', L'\xFFFF', L'\x7FFF'}) {
        SCOPED_TRACE(static_cast<int>(ch));
        CMarkup markup(L"<a>" + CString(ch, 70) + L"</a>");
        ASSERT_TRUE(markup.FindElem());
        EXPECT_TRUE(markup.GetData() == CString(ch, 70));
    }
}

std::wstring Repeat(const wchar_t* pszPiece, int nTimes)
{
    std::wstring text;
    for (int i = 0; i < nTimes; ++i)
        text += pszPiece;
    return text;
}

TEST(MarkupLaws, MillionDeepNestingParses)
{
    constexpr int DEPTH = 1000000;
    const std::wstring text = Repeat(L"<a>", DEPTH) + L"x" + Repeat(L"</a>", DEPTH);
    CMarkup markup(text.c_str());
    ASSERT_TRUE(markup.IsWellFormed());
    int nDepth = 0;
    while (markup.FindElem()) {
        ++nDepth;
        if (nDepth == DEPTH) {
            EXPECT_TRUE(markup.GetData() == L"x");
        }
        markup.IntoElem();
    }
    EXPECT_EQ(nDepth, DEPTH);
    while (markup.OutOfElem())
        --nDepth;
    EXPECT_EQ(nDepth, 0);

    EXPECT_FALSE(markup.SetDoc(Repeat(L"<a>", DEPTH).c_str()));
    EXPECT_TRUE(markup.GetError() == L"BaseUnit tag not found");
    EXPECT_EQ(markup.GetFailurePos(), 3 * (DEPTH - 1));
}

// The processor time of this thread, which other programs on the machine do not lengthen.
double ProcessorSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// The least time of a few runs: what the work costs when nothing disturbs it.
double LeastSeconds(const std::function<void()>& work)
{
    double dLeast = 1e9;
    for (int i = 0; i < 3; ++i) {
        const double dStart = ProcessorSeconds();
        work();
        dLeast = std::min(dLeast, ProcessorSeconds() - dStart);
    }
    return dLeast;
}

TEST(MarkupLaws, NoTextMakesParsingQuadratic)
{
    // Eight times the text may take eight times as long, and some; quadratic cost would be seconds.
    const wchar_t* const pieces[] = {L"<a>",  L"<a/>",    L"<",      L">",          L"<!",     L"<!-",
                                     L"<!--", L"<![",     L"<?",     L"<!a 'b",     L"<!a [",  L"<!a>",
                                     L"<a '", L"</a '",   L"</",     L"</a b",      L"<a></a", L" ",
                                     L"\"",   L"<a></a>", L"<a x='", L"<a></a '>'", L"<aaaa",  L"a"};
    for (const wchar_t* pszPiece : pieces) {
        for (const wchar_t* pszFirst : {L"", L"<r>", L"<r></r ", L"<"}) {
            SCOPED_TRACE(CString(pszFirst).ToUtf8() + CString(pszPiece).ToUtf8());
            constexpr int SMALL = 8000;
            const std::wstring small = pszFirst + Repeat(pszPiece, SMALL);
            const std::wstring large = pszFirst + Repeat(pszPiece, 8 * SMALL);
            CMarkup markup;
            const double dSmall = LeastSeconds([&] { markup.SetDoc(small.c_str()); });
            const double dLarge = LeastSeconds([&] { markup.SetDoc(large.c_str()); });
            EXPECT_LT(dLarge, 32 * dSmall + 0.1);
        }
    }
}

TEST(MarkupLaws, ReadingAValueCostsItsElementOnly)
{
    // A small element before a long rest: no reading operation may look at the rest.
    const std::wstring rest = L"</b>" + Repeat(L"<c>y</c>", 400000) + L"</r>";
    CMarkup markup((L"<r><b x='1'>  <![CDATA[ x" + rest).c_str());
    ASSERT_FALSE(markup.IsWellFormed());
    ASSERT_TRUE(markup.SetDoc((L"<r><b x='1'>  <![CDATA[x]]>" + rest).c_str()));
    markup.FindElem();
    markup.FindChildElem();
    std::size_t nRead = 0;
    const double dSeconds = LeastSeconds([&] {
        for (int i = 0; i < 1000; ++i) {
            nRead += static_cast<std::size_t>(markup.GetChildData().GetLength() +
                                              markup.GetChildAttrib(L"x").GetLength());
            nRead += static_cast<std::size_t>(markup.GetChildAttrib(L"none").GetLength());
        }
    });
    EXPECT_EQ(nRead, 3 * 1000 * 2U);
    const double dParse = LeastSeconds([&] { CMarkup other(markup.GetDoc()); });
    EXPECT_LT(dSeconds / 1000, dParse / 10);
}

void Append(CMarkup& markup, int nChildren, bool bResetCursor)
{
    markup.SetDoc(L"<r><!-- the first line --></r>");
    markup.FindElem();
    for (int i = 0; i < nChildren; ++i) {
        markup.AddChildElem(L"unit");
        markup.SetChildAttrib(L"name", L"value");
        if (bResetCursor)
            markup.ResetChildPos();
    }
}

TEST(MarkupLaws, AppendingCostsTheSameHoweverLongTheDocumentIs)
{
    constexpr int SMALL = 5000;
    for (const bool bResetCursor : {false, true}) {
        CMarkup markup;
        const double dSmall = LeastSeconds([&] { Append(markup, SMALL, bResetCursor); });
        const double dLarge = LeastSeconds([&] { Append(markup, 10 * SMALL, bResetCursor); });
        EXPECT_LT(dLarge, 20 * dSmall + 0.1);
        // One more edit at the end takes its share of that and not a new pass over the document.
        const double dMore = LeastSeconds([&] {
            for (int i = 0; i < SMALL; ++i) {
                markup.AddChildElem(L"unit");
                markup.SetChildAttrib(L"name", L"value");
            }
        });
        EXPECT_LT(dMore, dLarge + 0.1);
    }
}

} // namespace
