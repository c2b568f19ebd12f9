// Drawing at a scale: panes that touch leave no gap between them, and what is drawn twice by exclusive or is
// gone, wherever the edges fall.
#include "platform/graphics/Pen.h"
#include "window/TestWindow.h"

#include <deque>
#include <vector>

namespace {

using namespace splitframe;

class ScaleTest : public WindowTest, public testing::WithParamInterface<double>
{
protected:
    ScaleTest()
    {
        auto pDisplay = std::make_unique<HeadlessDisplay>(401, 303, GetParam());
        pDisplay->SetClock(0);
        SetDisplay(std::move(pDisplay));
        m_main.Open(nullptr, {0, 0, 401, 303}, WS_VISIBLE | WS_CLIPCHILDREN);
        for (int n = 0; n < 7; ++n) { // odd edges
            CLogWnd& pane = m_panes.emplace_back("p");
            pane.m_color = RGB(40 + n, 90, 160);
            pane.Open(&m_main, {n * 57, 0, (n + 1) * 57 + (n == 6 ? 2 : 0), 303});
        }
        Drain();
    }
    std::vector<std::uint32_t> Pixels()
    {
        const Surface& shown = Screen().Shown();
        const std::uint32_t* pFirst = shown.Row(0);
        const auto nCount =
            static_cast<std::size_t>(shown.DeviceWidth()) * static_cast<std::size_t>(shown.DeviceHeight());
        return {pFirst, pFirst + nCount};
    }
    CLogWnd m_main;
    std::deque<CLogWnd> m_panes;
};

TEST_P(ScaleTest, PanesTouchWithoutGaps)
{
    const Surface& shown = Screen().Shown();
    const std::uint32_t* pRow = shown.Row(shown.DeviceHeight() / 2);
    int nPane = 0;
    for (int x = 0; x < shown.DeviceWidth(); ++x) {
        if (ColorFromPixel(pRow[x]) != m_panes[static_cast<std::size_t>(nPane)].m_color)
            ++nPane;
        ASSERT_LT(nPane, 7) << x;
        ASSERT_EQ(ColorFromPixel(pRow[x]), m_panes[static_cast<std::size_t>(nPane)].m_color) << x;
    }
    EXPECT_EQ(nPane, 6);
}

TEST_P(ScaleTest, ExclusiveOrRestoresAndTouchesOnlyItsOwnPixels)
{
    const std::vector<std::uint32_t> before = Pixels();
    CPen pen(PS_SOLID, 3, RGB(255, 255, 255));
    const auto draw = [&](int x) {
        const HDC hScreen = ::GetDC(nullptr);
        CDC& dc = *CDC::FromHandle(hScreen);
        dc.SetROP2(R2_XORPEN);
        CPen* pOld = dc.SelectObject(&pen);
        dc.MoveTo(x, 10);
        dc.LineTo(x, 290);
        dc.MoveTo(5, x);
        dc.LineTo(390, x);
        dc.SelectObject(pOld);
        ::ReleaseDC(nullptr, hScreen);
    };
    for (int x = 57; x < 70; ++x) {
        draw(x);
        m_panes[1].Invalidate(); // repaints beneath the line
        Drain();
        EXPECT_NE(Pixels(), before);
        draw(x);
        Drain();
        ASSERT_EQ(Pixels(), before) << x;
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, ScaleTest, testing::Values(0.75, 1.0, 1.25, 1.5, 2.0, 3.0));

} // namespace
