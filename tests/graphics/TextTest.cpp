// Text: measures, placement, ellipsis, breaking, fallback fonts, hostile text, and the cache that must not be
// seen.
#include "Picture.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

const wchar_t kCjk[] = L"\x4E2D\x6587\x8868\x683C";
const wchar_t kClef[] = L"\x1D11E"; // one whole character above FFFF

int LineHeight(const CDC& dc)
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

CRect Measure(CDC& dc, const CString& str, int nWidth, UINT nFlags)
{
    RECT rc{3, 5, 3 + nWidth, 7};
    const int nHeight = dc.DrawText(str, &rc, nFlags | DT_CALCRECT);
    EXPECT_EQ(nHeight, rc.bottom - rc.top);
    EXPECT_EQ(CRect(rc).TopLeft(), CPoint(3, 5));
    return rc;
}

} // namespace

TEST(Text, ExtentGrowsWithTheText)
{
    Picture picture;
    CString str;
    int nBefore = 0;
    for (const wchar_t ch : std::wstring(L"The quick brown fox \x4E2D\x6587 x")) {
        str += ch;
        const CSize size = picture.dc.GetTextExtent(str);
        EXPECT_GE(size.cx, nBefore);
        EXPECT_EQ(size.cy, LineHeight(picture.dc)) << "fallback glyphs make no line taller";
        nBefore = size.cx;
    }
    EXPECT_EQ(picture.dc.GetTextExtent(L""), CSize(0, LineHeight(picture.dc)));
}

TEST(Text, OtherScriptsAndPlanesTakeRoomAndDraw)
{
    for (const wchar_t* psz : {kCjk, kClef, L"\xD55C\xAE00"}) {
        Picture picture(120, 30);
        const CString str(psz);
        EXPECT_GT(picture.dc.GetTextExtent(str).cx, 5);
        picture.dc.TextOut(10, 5, str);
        EXPECT_GE(picture.Inked().Width(), 3);
    }
    // A character above FFFF is two units and one glyph; parted, its halves are two replacement characters.
    Picture whole(120, 30);
    Picture parted(120, 30);
    const CString strClef(kClef);
    ASSERT_EQ(strClef.GetLength(), 2);
    const wchar_t swapped[] = {strClef[1], strClef[0]};
    whole.dc.TextOut(0, 0, CString::FromUnits(swapped, 2));
    parted.dc.TextOut(0, 0, L"\xFFFD\xFFFD");
    EXPECT_EQ(whole.Hash(), parted.Hash());
}

TEST(Text, StandsWhereTheFlagsSay)
{
    struct Case
    {
        UINT nFlags;
        double dX, dY; // where the free room goes: 0 after, 0.5 both, 1 before
    };
    const Case cases[] = {{DT_LEFT, 0.0, 0.0},
                          {DT_CENTER, 0.5, 0.0},
                          {DT_RIGHT | DT_BOTTOM, 1.0, 1.0},
                          {DT_CENTER | DT_VCENTER, 0.5, 0.5}};
    Picture reference(200, 100);
    reference.dc.TextOut(0, 0, L"Hxg");
    const CRect rcInk = reference.Inked();
    const CSize size = reference.dc.GetTextExtent(L"Hxg");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.nFlags);
        Picture picture(200, 100);
        RECT rc{20, 10, 151, 81};
        picture.dc.DrawText(L"Hxg", &rc, c.nFlags | DT_SINGLELINE);
        CRect rcWanted = rcInk;
        rcWanted.OffsetRect(20 + static_cast<int>((131 - size.cx) * c.dX),
                            10 + static_cast<int>((71 - size.cy) * c.dY));
        EXPECT_EQ(picture.Inked().TopLeft(), rcWanted.TopLeft());
        EXPECT_EQ(picture.Inked().Size(), rcWanted.Size());
    }
}

TEST(Text, EllipsisFitsAndOnlyWhereNeeded)
{
    Picture picture(300, 30);
    const CString strLong(L"A caption that is far too long for its tab \x4E2D\x6587");
    const int nFull = picture.dc.GetTextExtent(strLong).cx;
    for (int nWidth = 20; nWidth < nFull + 10; nWidth += 7) {
        const CRect rc = Measure(picture.dc, strLong, nWidth, DT_SINGLELINE | DT_END_ELLIPSIS);
        EXPECT_LE(rc.Width(), nWidth);
        EXPECT_GE(rc.Width(), std::min(nWidth - 30, nFull));
        EXPECT_EQ(rc.Height(), LineHeight(picture.dc));
    }
    EXPECT_EQ(Measure(picture.dc, strLong, nFull, DT_SINGLELINE | DT_END_ELLIPSIS).Width(), nFull);
}

TEST(Text, BreaksLinesAndMeasuresThem)
{
    Picture picture(300, 200);
    const int nLine = LineHeight(picture.dc);
    EXPECT_EQ(Measure(picture.dc, L"one\ntwo\r\nthree", 10, 0).Height(), 3 * nLine);
    EXPECT_EQ(Measure(picture.dc, L"one\ntwo\r\nthree", 10, DT_SINGLELINE).Height(), nLine);
    const CString strWords(L"several words that need more than one line");
    int nBefore = INT_MAX;
    for (const int nWidth : {40, 60, 100, 150, 400}) {
        const CRect rc = Measure(picture.dc, strWords, nWidth, DT_WORDBREAK);
        EXPECT_LE(rc.Width(), nWidth);
        EXPECT_LE(rc.Height(), nBefore);
        nBefore = rc.Height();
    }
    EXPECT_EQ(nBefore, nLine);
    EXPECT_LE(Measure(picture.dc, L"Unbreakablelongword", 40, DT_WORDBREAK).Width(), 40);
    // No room at all still ends.
    for (const int nWidth : {0, -5, INT_MIN / 2})
        EXPECT_GT(Measure(picture.dc, strWords, nWidth, DT_WORDBREAK).Height(), 0);
}

TEST(Text, AmpersandsMarkUnlessTold)
{
    Picture picture(200, 40);
    CDC& dc = picture.dc;
    EXPECT_EQ(Measure(dc, L"&File", 0, DT_SINGLELINE).Width(), dc.GetTextExtent(L"File").cx);
    EXPECT_EQ(Measure(dc, L"A && B", 0, DT_SINGLELINE).Width(), dc.GetTextExtent(L"A & B").cx);
    EXPECT_EQ(Measure(dc, L"&File", 0, DT_SINGLELINE | DT_NOPREFIX).Width(), dc.GetTextExtent(L"&File").cx);
    const auto hash = [](const wchar_t* psz, UINT nFlags) {
        Picture own(100, 30);
        RECT rc{0, 0, 100, 30};
        own.dc.DrawText(psz, &rc, nFlags);
        return own.Hash();
    };
    EXPECT_NE(hash(L"&File", DT_SINGLELINE), hash(L"File", DT_SINGLELINE));
    EXPECT_EQ(hash(L"&File", DT_SINGLELINE | DT_HIDEPREFIX), hash(L"File", DT_SINGLELINE));
    EXPECT_NE(hash(L"F&\x1D11Ex", DT_SINGLELINE), hash(L"F\x1D11Ex", DT_SINGLELINE));
    EXPECT_EQ(hash(L"File&", DT_SINGLELINE), hash(L"File", DT_SINGLELINE)) << "nothing follows the mark";
}

TEST(Text, HostileTextOnlyCostsTime)
{
    Picture picture(100, 60);
    std::wstring strAll;
    for (int n = 0; n < 0x10000; n += 7)
        strAll += static_cast<wchar_t>(n);
    const CString texts[] = {CString::FromUnits(strAll.data(), static_cast<int>(strAll.size())),
                             CString(L'\n', 50000), CString(L'W', 200000), CString(L'\xD800', 70000),
                             CString(L'&', 1001)};
    for (const CString& str : texts) {
        for (const UINT nFlags : {DT_LEFT, DT_SINGLELINE | DT_END_ELLIPSIS, DT_WORDBREAK}) {
            RECT rc{0, 0, 100, 60};
            EXPECT_GT(picture.dc.DrawText(str, &rc, nFlags), 0);
        }
        EXPECT_GE(picture.dc.GetTextExtent(str).cx, 0);
    }
}

TEST(Text, FontsDifferAndBadOnesWork)
{
    Picture picture;
    const auto extent = [&](CFont& font) {
        CFont* pOld = picture.dc.SelectObject(&font);
        const CSize size = picture.dc.GetTextExtent(L"Sample");
        picture.dc.SelectObject(pOld);
        return size;
    };
    CFont plain, large, bold, points, unknown, minimal, maximal;
    EXPECT_TRUE(plain.CreateFont(0, nullptr));
    EXPECT_FALSE(plain.CreateFont(20, nullptr)) << "it has one";
    large.CreateFont(-24, L"");
    bold.CreateFont(0, nullptr, FW_BOLD);
    points.CreatePointFont(90, nullptr);
    unknown.CreateFont(0, L"No, such;Face \xD800");
    minimal.CreateFont(1, nullptr, -5);
    maximal.CreateFont(INT_MIN, nullptr, INT_MAX, true, true);
    EXPECT_GT(extent(large).cx, extent(plain).cx * 3 / 2);
    EXPECT_GT(extent(large).cy, extent(plain).cy);
    EXPECT_GT(extent(bold).cx, extent(plain).cx);
    EXPECT_EQ(extent(points), extent(plain)) << "9 points are 12 pixels";
    EXPECT_GT(extent(unknown).cx, 0);
    EXPECT_GE(extent(minimal).cy, 1);
    EXPECT_GT(extent(maximal).cx, extent(large).cx);
}

TEST(Text, CacheIsNotSeen)
{
    const auto draw = [](double dScale) {
        Picture picture(150, 80, dScale);
        RECT rc{0, 0, 150, 80};
        picture.dc.DrawText(L"Cached text \x4E2D\x6587 with words", &rc, DT_WORDBREAK);
        picture.dc.SetTextColor(kRed);
        rc.top = 60;
        picture.dc.DrawText(L"Cached text \x4E2D\x6587 with words", &rc, DT_SINGLELINE | DT_END_ELLIPSIS);
        return picture.Hash();
    };
    splitframe::ReleaseFontResources();
    const std::uint64_t nPlain = draw(1.0);
    const std::uint64_t nDense = draw(2.0);
    EXPECT_EQ(draw(1.0), nPlain);
    EXPECT_EQ(draw(2.0), nDense);
    Picture picture;
    for (int i = 0; i < 6000; ++i) // more than the cache holds
        picture.dc.GetTextExtent(CString(L'a' + i % 20, 1 + i / 20));
    EXPECT_EQ(draw(1.0), nPlain);
    splitframe::ReleaseFontResources();
    EXPECT_EQ(draw(1.0), nPlain);
    EXPECT_EQ(draw(2.0), nDense);
}
