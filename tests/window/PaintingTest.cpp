// What is painted, how often, and what is left alone.
#include "window/TestWindow.h"

#include "platform/graphics/SystemColors.h"

namespace {

constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF GREEN = RGB(0, 255, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);

class PaintingTest : public WindowTest
{
protected:
    PaintingTest() : m_main("m"), m_a("a"), m_b("b")
    {
        m_main.m_color = RED;
        m_a.m_color = GREEN;
        m_b.m_color = BLUE;
        m_main.Open(nullptr, {0, 0, 400, 300}, WS_VISIBLE | WS_CLIPCHILDREN);
        m_a.Open(&m_main, {10, 10, 110, 110});
        m_b.Open(&m_main, {200, 10, 300, 110});
        Drain();
        Forget();
    }
    void Forget()
    {
        for (CLogWnd* pEach : {&m_main, &m_a, &m_b}) {
            pEach->m_nPaints = 0;
            pEach->m_nErases = 0;
        }
    }
    std::string Paints()
    {
        Drain();
        const std::string str = "m" + std::to_string(m_main.m_nPaints) + " a" +
                                std::to_string(m_a.m_nPaints) + " b" + std::to_string(m_b.m_nPaints);
        Forget();
        return str;
    }
    CLogWnd m_main, m_a, m_b;
};

TEST_F(PaintingTest, EverythingIsShownOnce)
{
    EXPECT_EQ(Pixel(5, 5), RED);
    EXPECT_EQ(Pixel(10, 10), GREEN);
    EXPECT_EQ(Pixel(299, 109), BLUE);
    EXPECT_EQ(Pixel(300, 109), RED);
    EXPECT_EQ(Paints(), "m0 a0 b0");
    const unsigned long nPresents = Screen().PresentCount();
    Drain();
    EXPECT_EQ(Screen().PresentCount(), nPresents) << "idle shows nothing";
}

TEST_F(PaintingTest, ManyMarksOnePaint)
{
    for (int n = 0; n < 50; ++n)
        m_a.InvalidateRect(CRect(n, 5, n + 1, 6));
    EXPECT_EQ(Paints(), "m0 a1 b0");
    EXPECT_EQ(m_a.m_rcPainted, CRect(0, 5, 50, 6));
    EXPECT_EQ(Screen().LastPresented().Bounds().left, 10);
    EXPECT_EQ(Screen().LastPresented().Bounds().right, 60);
}

TEST_F(PaintingTest, WhatIsPaintedByWhichChange)
{
    struct Case
    {
        const char* what;
        std::function<void()> change;
        const char* paints;
    };
    const Case cases[] = {
        {"a clipped parent alone", [&] { m_main.Invalidate(); }, "m1 a0 b0"},
        {"nothing outside of it", [&] { m_a.InvalidateRect(CRect(500, 0, 600, 9)); }, "m0 a0 b0"},
        {"validated again",
         [&] {
             m_a.Invalidate();
             m_a.ValidateRect(nullptr);
         },
         "m0 a0 b0"},
        {"moved: itself and what it bared", [&] { m_a.MoveWindow(10, 150, 100, 100); }, "m1 a1 b0"},
        {"grown: only itself", [&] { m_a.MoveWindow(10, 140, 120, 120); }, "m0 a1 b0"},
        {"hidden: the parent", [&] { m_a.ShowWindow(SW_HIDE); }, "m1 a0 b0"},
        {"marked while hidden", [&] { m_a.Invalidate(); }, "m0 a0 b0"},
        {"shown", [&] { m_a.ShowWindow(SW_SHOW); }, "m0 a1 b0"},
        {"raised without overlap",
         [&] {
             m_b.BringWindowToTop();
             m_a.BringWindowToTop();
         },
         "m0 a0 b0"},
        {"over the other: itself", [&] { m_a.SetWindowPos(nullptr, 150, 50, 100, 100, SWP_NOZORDER); },
         "m1 a1 b0"},
        {"raised with overlap: the raised one", [&] { m_b.BringWindowToTop(); }, "m0 a0 b1"},
        {"uncovered", [&] { m_b.ShowWindow(SW_HIDE); }, "m1 a1 b0"},
        {"NOREDRAW leaves it", [&] { m_a.SetWindowPos(nullptr, 0, 0, 9, 9, SWP_NOREDRAW); }, "m0 a0 b0"},
        {"all with children",
         [&] { m_main.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN); }, "m1 a1 b0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        c.change();
        EXPECT_EQ(Paints(), c.paints);
        EXPECT_EQ(Narrow(splitframe::CheckWindowTree()), "");
    }
}

TEST_F(PaintingTest, CoveredWindowsCostNoPainting)
{
    CLogWnd wndInside("i");
    wndInside.Open(&m_a, {0, 0, 20, 20});
    CLogWnd wndCover("c");
    wndCover.Open(&m_main, {0, 0, 400, 300});
    Drain();
    Forget();
    wndInside.m_nPaints = 0;
    m_a.Invalidate();
    wndInside.Invalidate();
    wndInside.MoveWindow(3, 3, 10, 10);
    m_main.Invalidate();
    EXPECT_EQ(Paints(), "m0 a0 b0");
    EXPECT_EQ(wndInside.m_nPaints, 0);
    EXPECT_TRUE(wndInside.IsWindowVisible());
    wndInside.Invalidate(); // once more, with marks left over from before
    wndCover.ShowWindow(SW_HIDE);
    EXPECT_EQ(Paints(), "m1 a1 b1");
    EXPECT_EQ(wndInside.m_nPaints, 1);
    wndInside.Invalidate();
    Drain();
    EXPECT_EQ(wndInside.m_nPaints, 2);
}

TEST_F(PaintingTest, WhatNobodyPaintsShowsTheFaceColour)
{
    CPlainWnd wndBlank;
    wndBlank.Open(&m_main, {20, 20, 60, 60});
    wndBlank.BringWindowToTop();
    Drain();
    EXPECT_EQ(Pixel(30, 30), GetSysColor(COLOR_3DFACE));
    wndBlank.MoveWindow(100, 20, 40, 40);
    Drain();
    EXPECT_EQ(Pixel(30, 30), GREEN);
    EXPECT_EQ(Pixel(120, 30), GetSysColor(COLOR_3DFACE));
    m_main.DestroyWindow();
    Drain();
    EXPECT_EQ(Pixel(120, 30), GetSysColor(COLOR_3DFACE));
}

TEST_F(PaintingTest, AClassBrushErases)
{
    CLogWnd wnd("w");
    const LPCWSTR pszClass =
        AfxRegisterWndClass(0, nullptr, reinterpret_cast<HBRUSH>(std::uintptr_t{COLOR_HIGHLIGHT + 1}));
    wnd.Open(&m_main, {0, 200, 50, 250}, WS_VISIBLE, pszClass);
    Drain();
    EXPECT_EQ(wnd.m_nErases, 1);
    wnd.InvalidateRect(nullptr, FALSE);
    Drain();
    EXPECT_EQ(wnd.m_nErases, 1) << "not asked to erase";
    CPlainWnd wndPlain;
    wndPlain.Create(pszClass, L"", WS_CHILD | WS_VISIBLE, CRect(60, 200, 90, 250), &m_main, 0);
    Drain();
    EXPECT_EQ(Pixel(70, 210), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(PaintingTest, ChangingTheTreeWhilePaintingEndsWell)
{
    m_main.m_on[WM_PAINT] = [&] { m_a.MoveWindow(m_a.m_nPaints % 2, 0, 50, 50); };
    m_main.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    m_main.Invalidate();
    splitframe::PaintNow();
    splitframe::PaintNow();
    splitframe::PaintNow();
    m_main.m_on.clear();
    Drain();
    EXPECT_EQ(Pixel(10, 10), GREEN);
    EXPECT_EQ(Pixel(250, 50), BLUE);
}

TEST_F(PaintingTest, AClientContextDrawsOnlyWhatIsVisible)
{
    m_b.MoveWindow(50, 10, 100, 100);
    Drain();
    CDC* pDC = m_a.GetDC();
    ASSERT_NE(pDC, nullptr);
    pDC->FillSolidRect(CRect(-100, -100, 500, 500), RGB(1, 2, 3));
    m_a.ReleaseDC(pDC);
    Drain();
    EXPECT_EQ(Pixel(20, 20), RGB(1, 2, 3));
    EXPECT_EQ(Pixel(5, 5), RED);
    EXPECT_EQ(Pixel(60, 20), BLUE) << "the sibling above is spared";
}

// One exclusive-or line, 3 pixels wide, from one point of the screen to another.
void DrawOnScreen(POINT from, POINT to)
{
    const HDC hDC = ::GetDC(nullptr);
    CDC& dc = *CDC::FromHandle(hDC);
    CPen pen(PS_SOLID, 3, RGB(92, 92, 92));
    CPen* pOld = dc.SelectObject(&pen);
    dc.SetROP2(R2_XORPEN);
    dc.MoveTo(from);
    dc.LineTo(to);
    dc.SelectObject(pOld);
    EXPECT_EQ(::ReleaseDC(nullptr, hDC), 1);
    EXPECT_EQ(::ReleaseDC(nullptr, hDC), 0);
}

TEST_F(PaintingTest, ALineOverTheScreenLeavesNothingBehind)
{
    const COLORREF colBefore = Pixel(20, 50);
    DrawOnScreen({20, 0}, {20, 200});
    Drain();
    EXPECT_EQ(Pixel(20, 50), colBefore ^ RGB(92, 92, 92));
    EXPECT_EQ(Screen().LastPresented().Bounds().right - Screen().LastPresented().Bounds().left, 3);
    m_a.m_color = RGB(9, 8, 7);
    m_a.Invalidate();
    Drain();
    EXPECT_EQ(Pixel(20, 50), RGB(9, 8, 7) ^ RGB(92, 92, 92)) << "stays above what is painted beneath";
    DrawOnScreen({0, 50}, {200, 50});
    Drain();
    EXPECT_EQ(Pixel(20, 50), RGB(9, 8, 7)) << "where two cross";
    Screen().Resize(250, 250);
    Drain();
    EXPECT_EQ(Pixel(20, 60), RGB(9, 8, 7) ^ RGB(92, 92, 92));
    DrawOnScreen({20, 0}, {20, 200});
    DrawOnScreen({0, 50}, {200, 50});
    Drain();
    for (const CPoint pt : {CPoint(20, 50), CPoint(20, 60), CPoint(60, 50), CPoint(19, 50)})
        EXPECT_EQ(Pixel(pt.x, pt.y), RGB(9, 8, 7));
}

TEST_F(PaintingTest, AContextMayBeKeptWhileTheDisplayChangesItsSize)
{
    CClientDC dcKept(&m_a);
    for (const int nSide : {1000, 50}) {
        Screen().Resize(nSide, nSide);
        Drain();
        dcKept.FillSolidRect(CRect(0, 0, 300, 300), RGB(1, 2, 3));
        dcKept.MoveTo(0, 0);
        dcKept.LineTo(200, 133);
        dcKept.TextOut(0, 0, L"kept");
        Drain();
    }
    m_main.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    Drain();
    EXPECT_EQ(Pixel(10, 10), GREEN) << "what follows is painted on the new surface";
}

TEST_F(PaintingTest, AMarkBelowAWindowUncoveredWithoutRepaintingIsNotLost)
{
    CLogWnd wndInner("i", &m_log), wndCover("k", &m_log);
    wndInner.Open(&m_a, {0, 0, 20, 20});
    wndCover.Open(&m_main, {0, 0, 200, 200});
    Drain();
    wndInner.Invalidate();
    Drain(); // covered, so nothing is painted
    wndCover.MoveWindow(250, 250, 10, 10, FALSE);
    Drain();
    const int nBefore = wndInner.m_nPaints;
    wndInner.Invalidate();
    Drain();
    EXPECT_EQ(wndInner.m_nPaints, nBefore + 1);
}

} // namespace
