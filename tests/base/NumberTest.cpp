// Numbers from text, and coordinates at the ends of their range.
#include "platform/base/Number.h"
#include "platform/base/Geometry.h"

#include <clocale>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace {

using namespace splitframe;
constexpr int MOST = std::numeric_limits<int>::max();
constexpr int LEAST = std::numeric_limits<int>::min();

TEST(Number, ReadsIntegers)
{
    struct Case
    {
        const wchar_t* text;
        int nValue;
    };
    const Case cases[] = {
        {nullptr, 0},
        {L"", 0},
        {L"12", 12},
        {L" \t\n\v\f\r-7x", -7},
        {L"+3", 3},
        {L"--3", 0},
        {L"+ 3", 0},
        {L"0x10", 0},
        {L"1e5", 1},
        {L"x1", 0},
        {L"2147483647", MOST},
        {L"2147483648", MOST},
        {L"-2147483648", LEAST},
        {L"-2147483649", LEAST},
        {L"99999999999999999999999999999", MOST},
        {L"-99999999999999999999999999999", LEAST},
        {L"000000000000000000000000000012", 12},
        {L"\xA0"
         L"5",
         0},
        {L"\x0665", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8());
        EXPECT_EQ(TextToInt(c.text), c.nValue);
    }
}

TEST(Number, ReadsReals)
{
    struct Case
    {
        const wchar_t* text;
        double dValue;
        bool bFits = true;
    };
    const std::wstring zeros(400, L'0');
    const std::wstring tiny = L"0." + zeros + L"1e401";
    const std::wstring large = L"1" + zeros + L"e-400";
    const std::wstring tooLarge = L"1" + zeros;
    const std::wstring tooSmall = L"0." + zeros + L"1";
    const Case cases[] = {
        {nullptr, 0.0},
        {L"", 0.0},
        {L"0.5", 0.5},
        {L" \n+.25z", 0.25},
        {L"-3.", -3.0},
        {L".", 0.0},
        {L"-", 0.0},
        {L"1e3", 1000.0},
        {L"1E-2", 0.01},
        {L"1e", 1.0},
        {L"1e+", 1.0},
        {L"2e-x", 2.0},
        {L"0x10", 0.0},
        {L"nan", 0.0},
        {L"inf", 0.0},
        {L"-infinity", 0.0},
        {L"1,5", 1.0},
        {L"1.5.5", 1.5},
        {L"1e308", 1e308},
        {L"1e999", 0.0, false},
        {L"-1e999", 0.0, false},
        {L"1e99999999999999999999", 0.0, false},
        {L"1e-99999999999999999999", 0.0},
        {L"0e999", 0.0},
        {L"0.0e99999999999999999999", 0.0},
        {L"1e-999", 0.0},
        {L"00.5", 0.5},
        {L"4.9e-324", 4.9e-324},
        {tiny.c_str(), 1.0},
        {large.c_str(), 1.0},
        {tooLarge.c_str(), 0.0, false},
        {tooSmall.c_str(), 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(CString(c.text).ToUtf8());
        double dValue = 77.0;
        EXPECT_EQ(TextToReal(c.text, dValue), c.bFits);
        EXPECT_EQ(dValue, c.bFits ? c.dValue : 77.0);
    }
}

TEST(Number, WritesWhatItReads)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t nBits = random();
        double dValue = 0.0;
        std::memcpy(&dValue, &nBits, sizeof(dValue));
        if (dValue - dValue != 0.0)
            continue;
        double dBack = 0.0;
        ASSERT_TRUE(TextToReal(RealToText(dValue), dBack));
        ASSERT_EQ(dBack, dValue);
    }
    EXPECT_TRUE(RealToText(0.1) == L"0.1");
}

TEST(Number, DoesNotAskTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8", "tr_TR.UTF-8"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue; // not installed here
        double dValue = 0.0;
        EXPECT_TRUE(TextToReal(L"1.5", dValue));
        EXPECT_EQ(dValue, 1.5);
        CString str;
        str.Format(L"%.2f %d", 1234.5, 1234567);
        EXPECT_TRUE(str == L"1234.50 1234567");
        EXPECT_EQ(CString(L"I").CompareNoCase(L"i"), 0);
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Number, ConvertsRealsToTheNearestInteger)
{
    EXPECT_EQ(ClampToInt(1.9), 1);
    EXPECT_EQ(ClampToInt(-1.9), -1);
    EXPECT_EQ(ClampToInt(1e10), MOST);
    EXPECT_EQ(ClampToInt(-1e300), LEAST);
    EXPECT_EQ(ClampToInt(std::numeric_limits<double>::infinity()), MOST);
    EXPECT_EQ(ClampToInt(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Geometry, StopsAtTheEndsOfTheRange)
{
    const CRect wild(LEAST, LEAST, MOST, MOST);
    EXPECT_EQ(wild.Width(), MOST);
    EXPECT_TRUE(wild.CenterPoint() == (POINT{0, 0}));
    EXPECT_TRUE(wild.PtInRect({0, 0}));
    CRect rc = wild;
    rc.InflateRect(10, 10);
    EXPECT_TRUE(rc == wild);
    rc.OffsetRect(MOST, LEAST);
    EXPECT_TRUE(rc == CRect(-1, LEAST, MOST, -1));
    rc = CRect(LEAST, 0, 0, 0);
    rc.DeflateRect(LEAST, LEAST);
    CPoint pt(MOST, LEAST);
    pt.Offset(1, -1);
    EXPECT_TRUE(pt == (POINT{MOST, LEAST}));
    EXPECT_TRUE((CPoint(LEAST, 0) - POINT{1, 1}) == (POINT{LEAST, -1}));
    EXPECT_TRUE(CRect(POINT{MOST, 0}, SIZE{5, 5}) == CRect(MOST, 0, MOST, 5));
}

TEST(Geometry, RectanglesCombine)
{
    struct Case
    {
        CRect a, b, common, around;
    };
    const Case cases[] = {
        {{0, 0, 10, 10}, {5, 5, 20, 20}, {5, 5, 10, 10}, {0, 0, 20, 20}},
        {{0, 0, 10, 10}, {10, 0, 20, 10}, {}, {0, 0, 20, 10}}, // touching is not sharing
        {{0, 0, 10, 10}, {}, {}, {0, 0, 10, 10}},
        {{7, 7, 7, 9}, {0, 0, 2, 2}, {}, {0, 0, 2, 2}}, // empty, though not null
        {{5, 5, 1, 1}, {9, 9, 9, 9}, {}, {}},
        {{-5, -5, -1, -1}, {-3, -9, 4, 4}, {-3, -5, -1, -1}, {-5, -9, 4, 4}},
    };
    for (const Case& c : cases) {
        CRect rc;
        EXPECT_EQ(rc.IntersectRect(c.a, c.b), !c.common.IsRectEmpty());
        EXPECT_TRUE(rc == c.common);
        EXPECT_EQ(rc.UnionRect(c.b, c.a), !c.around.IsRectEmpty());
        EXPECT_TRUE(rc == c.around);
    }
    CRect rc(5, 9, 1, 2);
    rc.NormalizeRect();
    EXPECT_TRUE(rc == CRect(1, 2, 5, 9));
    EXPECT_TRUE(rc.PtInRect({1, 2}) && rc.PtInRect({4, 8}) && !rc.PtInRect({5, 2}) && !rc.PtInRect({1, 9}));
}

} // namespace
