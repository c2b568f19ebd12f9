// Text: what enters is kept as UTF-16 units, whatever form it comes in.
#include "platform/base/String.h"
#include "platform/base/Exception.h"
#include "platform/base/Unicode.h"

#include <clocale>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace {

TEST(String, ConvertsNarrowText)
{
    struct Case
    {
        const char* narrow;
        std::wstring_view units;
        const char* back; // null: the same
    };
    const Case cases[] = {
        {"", L"", nullptr},
        {"plain", L"plain", nullptr},
        {"\xC3\xA9\xE4\xB8\xAD", L"\xE9\x4E2D", nullptr},
        {"\xF0\x9F\x98\x80", L"\xD83D\xDE00", nullptr},
        {"\xF4\x8F\xBF\xBF", L"\xDBFF\xDFFF", nullptr},
        {"\xFF", L"\xFF", "\xC3\xBF"}, // no UTF-8: the character of the same number
        {"\xC3", L"\xC3", "\xC3\x83"}, // cut
        {"\xE4\xB8", L"\xE4\xB8", "\xC3\xA4\xC2\xB8"},
        {"\xC0\x80", L"\xC0\x80", "\xC3\x80\xC2\x80"}, // overlong
        {"\xE0\x80\x80", L"\xE0\x80\x80", "\xC3\xA0\xC2\x80\xC2\x80"},
        {"\xED\xA0\x80", L"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xC2\x80"},                 // a surrogate
        {"\xF4\x90\x80\x80", L"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xC2\x80\xC2\x80"}, // above 10FFFF
        {"\xF5", L"\xF5", "\xC3\xB5"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.narrow);
        const CString str(c.narrow);
        EXPECT_TRUE(str.View() == c.units);
        EXPECT_EQ(str.ToUtf8(), c.back ? c.back : c.narrow);
        EXPECT_EQ(splitframe::CountUnits(c.narrow), c.units.size());
    }
    EXPECT_EQ(CString::FromUtf8(std::string_view("a\0b", 3)).GetLength(), 3);
}

TEST(String, EveryWayInSplitsCharactersAboveFFFF)
{
    const wchar_t* whole = L"a\U0001F600b";
    const CString units = CString::FromUnits(L"a\xD83D\xDE00"
                                             L"b",
                                             4);
    EXPECT_EQ(units.GetLength(), 4);
    CString assigned;
    assigned = whole;
    CString appended(L"a");
    appended += L"\U0001F600";
    appended += L'b';
    CString written;
    std::wcscpy(written.GetBuffer(3), whole);
    written.ReleaseBuffer();
    CString formatted;
    formatted.Format(L"%c%ls\U0001F600%s", L'a', L"", "b");
    CString counted(whole, 3);
    for (const CString& str : {CString(whole), assigned, appended, written, formatted, counted,
                               L"a" + CString(L'\U0001F600') + L'b', CString("a\xF0\x9F\x98\x80") + L"b"}) {
        EXPECT_TRUE(str == units);
        EXPECT_TRUE(str == whole);
        EXPECT_EQ(str.Compare(whole), 0);
        EXPECT_EQ(str.CompareNoCase(L"A\U0001F600B"), 0);
        EXPECT_EQ(str.Find(L"\U0001F600"), 1);
        EXPECT_EQ(str.Find(L'\U0001F600'), 1);
        EXPECT_EQ(str.ReverseFind(L'\U0001F600'), 1);
        EXPECT_TRUE(str.ToWide() == whole);
        EXPECT_EQ(std::hash<CString>{}(str), std::hash<CString>{}(units));
    }
    EXPECT_TRUE(CString(L'\U0001F600', 2) == L"\U0001F600\U0001F600");
    EXPECT_EQ(CString(static_cast<wchar_t>(0x7FFFFFFF)).GetLength(),
              2); // no character, but two units all the same
}

TEST(String, ComparesByUnits)
{
    struct Case
    {
        const wchar_t* a;
        const wchar_t* b;
        int nOrder;
        int nOrderNoCase;
    };
    const Case cases[] = {
        {L"", L"", 0, 0},
        {L"", nullptr, 0, 0},
        {L"a", nullptr, 1, 1},
        {L"a", L"b", -1, -1},
        {L"a", L"ab", -1, -1},
        {L"ab", L"a", 1, 1},
        {L"a", L"B", 1, -1},
        {L"UNIT", L"unit", -1, 0},
        {L"\xC4", L"\xE4", -1, 0},
        {L"\x0416", L"\x0436", -1, 0},
        {L"\xFFFF", L"\U00010000", 1, 1}, // units, not characters
        {L"\U00010000", L"\xD800", 1, 1},
    };
    const auto sign = [](int n) { return (n > 0) - (n < 0); };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.a).ToUtf8() + " and " + CString(c.b).ToUtf8());
        EXPECT_EQ(sign(CString(c.a).Compare(c.b)), c.nOrder);
        EXPECT_EQ(sign(CString(c.a).Compare(CString(c.b))), c.nOrder);
        EXPECT_EQ(sign(CString(c.b).Compare(CString(c.a))), -c.nOrder);
        EXPECT_EQ(sign(CString(c.a).CompareNoCase(c.b)), c.nOrderNoCase);
        EXPECT_EQ(CString(c.a) == CString(c.b), c.nOrder == 0);
    }
}

TEST(String, KeepsZeros)
{
    const CString str = CString::FromUnits(L"a\0b", 3);
    CString other = str;
    EXPECT_TRUE(other == str);
    EXPECT_FALSE(other == L"a");
    EXPECT_FALSE(CString(L"a") == str);
    other += str;
    EXPECT_EQ(other.GetLength(), 6);
    EXPECT_EQ(other.Find(L'b'), 2);
    EXPECT_EQ(other.Mid(2, 3).ToUtf8(), std::string("ba\0", 3));
    CString formatted;
    formatted.Format(L"%s", str);
    EXPECT_TRUE(formatted == str);
}

TEST(String, PartsAreClamped)
{
    constexpr int MOST = std::numeric_limits<int>::max();
    constexpr int LEAST = std::numeric_limits<int>::min();
    const CString str(L"abcdef");
    EXPECT_TRUE(str.Left(2) == L"ab" && str.Left(MOST) == L"abcdef" && str.Left(LEAST) == L"");
    EXPECT_TRUE(str.Right(2) == L"ef" && str.Right(MOST) == L"abcdef" && str.Right(-1) == L"");
    EXPECT_TRUE(str.Mid(2, 2) == L"cd" && str.Mid(-5, 2) == L"ab" && str.Mid(4, MOST) == L"ef" &&
                str.Mid(MOST, 1) == L"");
    EXPECT_EQ(str.Find(L'a', 1), -1);
    EXPECT_EQ(str.Find(L"f", 5), 5);
    EXPECT_EQ(str.Find(L"f", LEAST), -1);
    EXPECT_EQ(str.Find(L"", 6), 6);
    EXPECT_EQ(str.Find(L"x", MOST), -1);
    EXPECT_EQ(str[6], 0);
    for (const int nIndex : {-1, 7, LEAST, MOST}) {
        try {
            str.GetAt(nIndex);
            ADD_FAILURE() << nIndex;
        } catch (CException* pException) {
            EXPECT_TRUE(pException->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
            pException->Delete();
        }
    }
}

TEST(String, WorksOnItself)
{
    for (const int nLength : {3, 11, 12, 40, 200}) {
        SCOPED_TRACE(nLength);
        CString str(L'x', nLength - 1);
        str += L'y';
        const CString before = str;
        str += str;
        EXPECT_TRUE(str == before + before);
        str += str.GetString() + nLength;
        EXPECT_TRUE(str == before + before + before);
        str = str.GetString() + 2 * nLength;
        EXPECT_TRUE(str == before);
        CString& same = str;
        str = same;
        str = std::move(same);
        EXPECT_TRUE(str == before);
    }
}

TEST(String, MovesAndCopiesAtEveryLength)
{
    for (int nLength = 0; nLength < 30; ++nLength) {
        SCOPED_TRACE(nLength);
        const CString original(L'z', nLength);
        CString copy(original);
        CString moved(std::move(copy));
        EXPECT_TRUE(moved == original);
        EXPECT_TRUE(copy.IsEmpty()); // NOLINT(bugprone-use-after-move): a moved-from text is empty
        copy = L"again";
        moved = std::move(copy);
        EXPECT_TRUE(moved == L"again");
        moved = original;
        EXPECT_TRUE(moved == original);
        moved.Empty();
        EXPECT_EQ(*moved.GetString(), 0);
    }
}

TEST(String, EditsInPlace)
{
    CString str(L" \t Mixed \xC4\xE9 Case\n");
    EXPECT_TRUE(str.Trim() == L"Mixed \xC4\xE9 Case");
    EXPECT_TRUE(str.MakeUpper() == L"MIXED \xC4\xC9 CASE");
    EXPECT_TRUE(str.MakeLower() == L"mixed \xE4\xE9 case");
    str.SetAt(0, L'M');
    EXPECT_TRUE(str.Left(5) == L"Mixed");
    EXPECT_TRUE(CString(L" \r\n").Trim().IsEmpty());
    wchar_t* pBuffer = str.GetBuffer(100);
    pBuffer[0] = L'q';
    str.ReleaseBuffer(1);
    EXPECT_TRUE(str == L"q");
    str.GetBuffer(0);
    str.ReleaseBuffer(1 << 20); // no more than there is room for
    EXPECT_LE(str.GetLength(), 1 << 10);
}

template <class... Args> std::string Formatted(const wchar_t* pszFormat, const Args&... args)
{
    CString str;
    str.Format(pszFormat, args...);
    return str.ToUtf8();
}

TEST(String, FormatsLikePrintf)
{
    EXPECT_EQ(Formatted(L"%d %i %u %x %X %#x", -5, 7, 4000000000U, 255, 255, 255),
              "-5 7 4000000000 ff FF 0xff");
    EXPECT_EQ(Formatted(L"[%5d|%-5d|%05d|%+d|% d|%.3d]", 42, 42, -42, 42, 42, 7),
              "[   42|42   |-0042|+42| 42|007]");
    EXPECT_EQ(Formatted(L"%u %x", -1, -1), "4294967295 ffffffff");
    EXPECT_EQ(Formatted(L"%lld %I", std::numeric_limits<long long>::min()), "-9223372036854775808 %I");
    EXPECT_EQ(
        Formatted(L"%f %.2f %e %g %8.3f|%-8.1f|%08.2f", 1.5, 2.345, 12345.678, 0.0001, 3.14159, 2.5, -1.5),
        "1.500000 2.35 1.234568e+04 0.0001    3.142|2.5     |-0001.50");
    EXPECT_EQ(Formatted(L"%.2f", 1e308).size(), 312U);
    EXPECT_EQ(Formatted(L"%5s|%-5s|%.2s|%s", L"ab", "cd", CString(L"efgh"), std::string("ij")),
              "   ab|cd   |ef|ij");
    EXPECT_EQ(Formatted(L"%c%c%%", L'x', 65), "xA%");
    EXPECT_EQ(Formatted(L"%*d|%-*d|%.*f", 4, 1, 4, 2, 1, 0.25), "   1|2   |0.2");
    EXPECT_EQ(Formatted(L"%s,%d", L"name", true), "name,1");
}

TEST(String, SurvivesBadFormats)
{
    EXPECT_EQ(Formatted(L"%d %s"), "%d %s"); // no arguments
    EXPECT_EQ(Formatted(L"%"), "%");
    EXPECT_EQ(Formatted(L"%-08.3", 1), "%-08.3");
    EXPECT_EQ(Formatted(L"%y", 1), "%y");
    EXPECT_EQ(Formatted(L"%s", 12), "12"); // arguments are written as what they are
    EXPECT_EQ(Formatted(L"%d", L"text"), "text");
    EXPECT_EQ(Formatted(L"%s", static_cast<const wchar_t*>(nullptr)), "");
    EXPECT_EQ(Formatted(L"%f", std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(Formatted(L"%99999999999d", 1).size(), 4096U);
    EXPECT_EQ(Formatted(nullptr, 1), "");
}

TEST(String, RandomTextSurvivesTheRoundTrip)
{
    for (unsigned nSeed = 0; nSeed < 500; ++nSeed) {
        SCOPED_TRACE(nSeed);
        std::mt19937 random(nSeed);
        std::wstring whole;
        for (auto n = random() % 40; n > 0; --n) {
            const auto ch = random() % 3 == 0 ? random() % 0x110000 : random() % 0x100;
            whole.push_back(static_cast<wchar_t>(ch >= 0xD800 && ch < 0xE000 ? 'x' : ch + (ch == 0 ? 1 : 0)));
        }
        const CString str(whole.c_str());
        EXPECT_TRUE(str.ToWide() == whole);
        EXPECT_TRUE(CString(str.ToUtf8().c_str()) == str);
        EXPECT_TRUE(str == whole.c_str());
    }
}

} // namespace
