// Lines, shapes and areas, pixel by pixel on a small surface; clip, origin, exclusive-or, wild coordinates.
#include "Picture.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <random>

using splitframe::Region;

namespace {

struct Case
{
    const char* what;
    std::function<void(CDC&)> draw;
    const char* pixels; // of the upper left 6 by 5
};

void Line(CDC& dc, POINT from, POINT to)
{
    dc.MoveTo(from);
    dc.LineTo(to);
}

void WideLine(CDC& dc, int nWidth, POINT from, POINT to)
{
    CPen pen(PS_SOLID, nWidth, kRed);
    CPen* pOld = dc.SelectObject(&pen);
    Line(dc, from, to);
    dc.SelectObject(pOld);
}

void DrawEverything(CDC& dc, std::mt19937& random, bool bWild)
{
    const auto pick = [&]() -> int {
        constexpr int kEnds[] = {INT_MIN, INT_MIN + 1, -8388609,    -32769,
                                 32768,   8388608,     INT_MAX - 1, INT_MAX};
        if (bWild && random() % 2 == 0)
            return kEnds[random() % std::size(kEnds)];
        return std::uniform_int_distribution<int>(-10, 50)(random);
    };
    const auto point = [&] { return POINT{pick(), pick()}; };
    const auto rect = [&] { return CRect(pick(), pick(), pick(), pick()); };
    CPen pen(static_cast<int>(random() % 3), static_cast<int>(random() % 6), RGB(9, 200, 92));
    CBrush brush(RGB(77, 0, 130));
    CPen* pOldPen = dc.SelectObject(&pen);
    CBrush* pOldBrush = dc.SelectObject(&brush);
    const POINT points[] = {point(), point(), point(), point(), point()};
    const CRect rc = rect();
    Line(dc, point(), point());
    Line(dc, {points[0].x, points[1].y}, {points[0].x, points[2].y});
    dc.Polyline(points, 5);
    dc.Polygon(points, 5);
    dc.Rectangle(rc);
    dc.Ellipse(rect());
    dc.RoundRect(rect(), point());
    dc.SelectObject(pOldPen);
    dc.SelectObject(pOldBrush);
}

} // namespace

TEST(DC, DrawsPixelForPixel)
{
    const Case cases[] = {
        {"a line leaves its last pixel out",
         [](CDC& dc) {
             Line(dc, {1, 1}, {4, 1});
         },
         "....../.###../....../....../......"},
        {"also backwards",
         [](CDC& dc) {
             Line(dc, {4, 1}, {1, 1});
         },
         "....../..###./....../....../......"},
        {"upwards",
         [](CDC& dc) {
             Line(dc, {2, 3}, {2, 1});
         },
         "....../....../..#.../..#.../......"},
        {"a line without length has no pixel",
         [](CDC& dc) {
             Line(dc, {2, 2}, {2, 2});
         },
         "....../....../....../....../......"},
        {"three pixels lie around the line",
         [](CDC& dc) {
             WideLine(dc, 3, {2, 1}, {2, 4});
         },
         "....../.rrr../.rrr../.rrr../......"},
        {"two pixels: one before it",
         [](CDC& dc) {
             WideLine(dc, 2, {1, 2}, {4, 2});
         },
         "....../.rrr../.rrr../....../......"},
        {"border lines of a pane",
         [](CDC& dc) {
             Line(dc, {0, 0}, {0, 5});
             Line(dc, {0, 0}, {6, 0});
             Line(dc, {5, 0}, {5, 5});
         },
         "######/#....#/#....#/#....#/#....#"},
        {"a polyline continues",
         [](CDC& dc) {
             const POINT points[] = {{1, 1}, {4, 1}, {4, 4}};
             dc.Polyline(points, 3);
         },
         "....../.####./....#./....#./......"},
        {"a rectangle ends inside its edges",
         [](CDC& dc) {
             CBrush brush(kRed);
             CBrush* pOld = dc.SelectObject(&brush);
             dc.Rectangle(1, 0, 5, 4);
             dc.SelectObject(pOld);
         },
         ".####./.#rr#./.#rr#./.####./......"},
        {"a rectangle without area", [](CDC& dc) { dc.Rectangle(1, 1, 1, 4); },
         "....../....../....../....../......"},
        {"null pen, null brush",
         [](CDC& dc) {
             dc.SelectStockObject(NULL_PEN);
             dc.SelectStockObject(NULL_BRUSH);
             dc.Rectangle(0, 0, 6, 5);
             Line(dc, {0, 0}, {6, 5});
         },
         "....../....../....../....../......"},
        {"frame and fill",
         [](CDC& dc) {
             CBrush red(kRed);
             const RECT rc{1, 1, 5, 4};
             dc.FrameRect(&rc, &red);
             dc.FillSolidRect(2, 2, 2, 1, kBlue);
             dc.SetPixel(0, 0, 0);
         },
         "#...../.rrrr./.rbbr./.rrrr./......"},
        {"dots begin with a pixel",
         [](CDC& dc) {
             CPen pen(PS_DOT, 1, kRed);
             CPen* pOld = dc.SelectObject(&pen);
             Line(dc, {0, 1}, {6, 1});
             Line(dc, {5, 3}, {0, 3});
             dc.SelectObject(pOld);
         },
         "....../r.r.r./....../.r.r.r/......"},
        {"origins add up",
         [](CDC& dc) {
             EXPECT_EQ(dc.SetViewportOrg(2, 1), CPoint(0, 0));
             dc.FillSolidRect(0, 0, 2, 2, kRed);
             dc.SetViewportOrg(-1, -1);
             dc.FillSolidRect(1, 1, 1, 1, kBlue);
         },
         "b...../..rr../..rr../....../......"},
        {"a clip with a hole",
         [](CDC& dc) {
             const RECT rcHole{2, 1, 4, 3};
             const RECT rcClip{1, 0, 5, 4};
             const int nSaved = dc.SaveDC();
             dc.IntersectClipRect(&rcClip);
             dc.ExcludeClipRect(&rcHole);
             EXPECT_FALSE(dc.RectVisible(&rcHole));
             dc.FillSolidRect(-9, -9, 99, 99, kRed);
             EXPECT_EQ(dc.GetPixel(2, 1), 0xFFFFFFFFU);
             EXPECT_TRUE(dc.RestoreDC(nSaved));
             dc.SetPixel(2, 2, kBlue);
         },
         ".rrrr./.r..r./.rb.r./.rrrr./......"},
        {"a shape is cut to the clip too",
         [](CDC& dc) {
             const RECT rcClip{1, 1, 3, 4};
             dc.IntersectClipRect(&rcClip);
             const POINT points[] = {{-50, -50}, {50, -50}, {50, 50}, {-50, 50}};
             dc.SelectStockObject(BLACK_BRUSH);
             dc.Polygon(points, 4);
         },
         "....../.##.../.##.../.##.../......"},
        {"copied pixels overlap",
         [](CDC& dc) {
             dc.FillSolidRect(0, 0, 2, 1, kRed);
             dc.SetPixel(2, 0, kBlue);
             const RECT rcHole{2, 1, 3, 2};
             dc.ExcludeClipRect(&rcHole);
             EXPECT_TRUE(dc.BitBlt(1, 0, 3, 1, &dc, 0, 0));
             EXPECT_TRUE(dc.BitBlt(0, 1, 6, 1, &dc, 0, 0));
         },
         "rrrb../rr.b../....../....../......"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Picture picture;
        c.draw(picture.dc);
        EXPECT_EQ(picture.Text({0, 0, 6, 5}), c.pixels);
    }
}

TEST(DC, WindowOriginAndClipBoundEverything)
{
    Picture picture;
    picture.Attach({{10, 5}, Region(RECT{10, 5, 20, 15})});
    std::mt19937 random(11);
    for (int i = 0; i < 50; ++i)
        DrawEverything(picture.dc, random, false);
    RECT rc{-5, -5, 30, 30};
    picture.dc.DrawText(L"Wide text that leaves its window", &rc, DT_NOCLIP);
    CRect rcInk = picture.Inked();
    EXPECT_TRUE(rcInk.IntersectRect(rcInk, CRect(10, 5, 20, 15)));
    EXPECT_EQ(picture.Inked(), rcInk);
    EXPECT_EQ(picture.dc.GetClipBox(), CRect(0, 0, 10, 10));
}

TEST(DC, ExclusiveOrTwiceRestoresEveryPixel)
{
    for (const double dScale : {1.0, 1.5, 2.0}) {
        for (unsigned nSeed = 1; nSeed <= 30; ++nSeed) {
            SCOPED_TRACE("scale " + std::to_string(dScale) + ", seed " + std::to_string(nSeed));
            Picture picture(40, 30, dScale);
            std::mt19937 random(nSeed);
            DrawEverything(picture.dc, random, false);
            const RECT rcHole{12, 3, 17, 40};
            picture.dc.ExcludeClipRect(&rcHole);
            const std::uint64_t nBefore = picture.Hash();
            EXPECT_EQ(picture.dc.SetROP2(R2_XORPEN), R2_COPYPEN);
            std::mt19937 once(nSeed + 1000);
            std::mt19937 again(nSeed + 1000);
            DrawEverything(picture.dc, once, nSeed % 2 == 0);
            if (nSeed % 2 != 0) {
                EXPECT_NE(picture.Hash(), nBefore);
            }
            DrawEverything(picture.dc, again, nSeed % 2 == 0);
            ASSERT_EQ(picture.Hash(), nBefore);
        }
    }
}

TEST(DC, ExclusiveOrGoesToItsPlane)
{
    Picture picture;
    splitframe::XorPlane plane;
    Region damage;
    splitframe::Canvas canvas;
    canvas.pSurface = &picture.surface;
    canvas.clip = Region(picture.surface.Bounds());
    canvas.pXorPlane = &plane;
    canvas.pDamage = &damage;
    picture.dc.AttachCanvas(canvas);
    picture.dc.SetROP2(R2_XORPEN);
    CPen pen(PS_SOLID, 3, RGB(92, 92, 92));
    CPen* pOld = picture.dc.SelectObject(&pen);
    Line(picture.dc, {20, 5}, {20, 500});
    picture.dc.SelectObject(pOld);
    EXPECT_TRUE(picture.Inked().IsRectEmpty());
    EXPECT_TRUE(damage == Region(RECT{19, 5, 22, 30}));
    plane.Combine(picture.surface);
    EXPECT_EQ(picture.surface.GetPixel(19, 29), RGB(255 ^ 92, 255 ^ 92, 255 ^ 92));
    EXPECT_EQ(picture.Inked(), CRect(19, 5, 22, 30));
    plane.Combine(picture.surface);
    EXPECT_TRUE(picture.Inked().IsRectEmpty());
}

TEST(DC, WildCoordinatesNeitherHangNorLeaveTheClip)
{
    for (const double dScale : {1.0, 2.0}) {
        Picture picture(40, 30, dScale);
        Region damage;
        splitframe::Canvas canvas;
        canvas.pSurface = &picture.surface;
        canvas.ptOrigin = {INT_MAX, INT_MIN};
        canvas.clip = Region(RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX});
        canvas.pDamage = &damage;
        std::mt19937 random(5);
        for (int i = 0; i < 90; ++i) {
            if (i % 3 == 0)
                canvas.ptOrigin = {};
            picture.dc.AttachCanvas(canvas);
            picture.dc.SetViewportOrg(i % 2 ? INT_MIN : 0, i % 5 ? 0 : INT_MAX);
            DrawEverything(picture.dc, random, true);
            RECT rc{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
            picture.dc.DrawText(L"text", &rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
            picture.dc.TextOut(INT_MAX, INT_MIN, L"text");
            picture.dc.FillSolidRect(&rc, kWhite);
            picture.dc.BitBlt(INT_MIN, INT_MIN, INT_MAX, INT_MAX, &picture.dc, INT_MAX, INT_MAX);
            picture.dc.GetClipBox();
            picture.dc.GetPixel(INT_MAX, INT_MIN);
        }
        EXPECT_TRUE(Region(picture.surface.Bounds()).Contains(damage.Bounds()));
    }
}

TEST(DC, HugeShapesLookLikeTheirVisiblePart)
{
    Picture huge;
    Picture small;
    const POINT far[] = {
        {-2000000000, -2000000000}, {2000000000, -2000000000}, {2000000000, 10}, {-2000000000, 10}};
    const POINT near[] = {{-100, -100}, {100, -100}, {100, 10}, {-100, 10}};
    CPen pen(PS_SOLID, 1, kRed);
    for (Picture* p : {&huge, &small})
        p->dc.SelectObject(&pen);
    huge.dc.Polygon(far, 4);
    small.dc.Polygon(near, 4);
    Line(huge.dc, {-1000000000, -1000000000}, {1000000000, 1000000000});
    Line(small.dc, {-100, -100}, {100, 100});
    EXPECT_EQ(huge.Hash(), small.Hash());
    EXPECT_EQ(huge.surface.GetPixel(35, 10), kRed);
}

TEST(DC, SavesAndRestoresAllState)
{
    Picture picture;
    CDC& dc = picture.dc;
    EXPECT_FALSE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.SaveDC(), 1);
    dc.SetTextColor(kRed);
    dc.SetBkMode(OPAQUE);
    EXPECT_EQ(dc.SetBkMode(77), 0);
    EXPECT_EQ(dc.SetROP2(0), 0);
    dc.SetROP2(R2_XORPEN);
    EXPECT_EQ(dc.SaveDC(), 2);
    dc.MoveTo(3, 4);
    EXPECT_FALSE(dc.RestoreDC(3));
    EXPECT_FALSE(dc.RestoreDC(0));
    EXPECT_TRUE(dc.RestoreDC(1));
    EXPECT_EQ(dc.GetTextColor(), 0U);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.GetROP2(), R2_COPYPEN);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(0, 0));
    EXPECT_FALSE(dc.RestoreDC(1));
}

TEST(DC, WithoutSurfaceNothingHappens)
{
    CDC dc;
    std::mt19937 random(1);
    DrawEverything(dc, random, true);
    RECT rc{0, 0, 50, 50};
    EXPECT_GT(dc.DrawText(L"text", &rc, 0), 0);
    EXPECT_GT(dc.GetTextExtent(L"text").cx, 0);
    EXPECT_EQ(dc.GetPixel(0, 0), 0xFFFFFFFFU);
    EXPECT_TRUE(dc.GetClipBox().IsRectEmpty());
    Picture picture;
    EXPECT_FALSE(picture.dc.BitBlt(0, 0, 5, 5, &dc, 0, 0));
    picture.dc.DetachCanvas();
    DrawEverything(picture.dc, random, false);
    EXPECT_TRUE(picture.Inked().IsRectEmpty());
}
