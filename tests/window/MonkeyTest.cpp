// Random life of a window tree: windows come, go, move, restack, and their handlers do the same meanwhile.
// After every step the tree's rules hold, and after painting the screen shows what a plain painter's walk
// over the tree gives.
#include "window/TestWindow.h"

#include "platform/graphics/SystemColors.h"

#include <cstdlib>
#include <random>

namespace {

class CMonkeyWnd : public CLogWnd
{
public:
    using CLogWnd::CLogWnd;
    int m_nIndex = 0;
};

class MonkeyTest : public WindowTest
{
protected:
    static constexpr int WINDOWS = 24;

    int Below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    CMonkeyWnd& Any() { return *m_windows[static_cast<std::size_t>(Below(WINDOWS))]; }
    CRect AnyRect()
    {
        const int x = Below(60) - 10;
        const int y = Below(60) - 10;
        return {x, y, x + Below(60) - 5, y + Below(60) - 5};
    }
    void Start(unsigned nSeed);
    void Step(int nDepth);
    void Create(CMonkeyWnd& wnd);
    COLORREF Expected(int x, int y);
    void Compare();

    std::mt19937 m_random;
    std::vector<std::unique_ptr<CMonkeyWnd>> m_windows;
    CLogWnd m_main{"main"};
};

void MonkeyTest::Start(unsigned nSeed)
{
    m_random.seed(nSeed);
    m_main.m_color = RGB(250, 250, 250);
    m_main.Open(nullptr, {0, 0, 80, 60}, WS_VISIBLE | WS_CLIPCHILDREN);
    for (int n = 0; n < WINDOWS; ++n) {
        m_windows.push_back(std::make_unique<CMonkeyWnd>());
        m_windows.back()->m_nIndex = n;
        m_windows.back()->m_color = RGB(n * 10, 255 - n * 7, 100 + n);
    }
}

void MonkeyTest::Create(CMonkeyWnd& wnd)
{
    if (wnd.GetSafeHwnd())
        return;
    CMonkeyWnd& parent = Any();
    CWnd* pParent = parent.GetSafeHwnd() && Below(2) == 0 ? static_cast<CWnd*>(&parent) : &m_main;
    wnd.m_on.clear();
    if (Below(4) == 0) {
        const UINT messages[] = {WM_SIZE,   WM_MOVE,     WM_SHOWWINDOW, WM_DESTROY,        WM_NCDESTROY,
                                 WM_CREATE, WM_SETFOCUS, WM_KILLFOCUS,  WM_CAPTURECHANGED, WM_USER};
        wnd.m_on[messages[Below(10)]] = [this] { Step(1); };
    }
    const DWORD dwClip = Below(2) == 0 ? WS_CLIPCHILDREN : 0;
    wnd.Open(pParent, AnyRect(), dwClip | (Below(5) != 0 ? WS_VISIBLE : 0));
}

void MonkeyTest::Step(int nDepth)
{
    // Handlers call handlers: somewhere it must end.
    static int nNested = 0;
    if (nNested > 4)
        return;
    ++nNested;
    CMonkeyWnd& wnd = Any();
    CMonkeyWnd& other = Any();
    const CRect rc = AnyRect();
    switch (Below(14)) {
    case 0:
    case 1:
    case 2:
        Create(wnd);
        break;
    case 3:
        wnd.DestroyWindow();
        break;
    case 4:
    case 5:
        wnd.MoveWindow(rc);
        break;
    case 6:
        wnd.SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_SHOWWINDOW);
        break;
    case 7:
        wnd.SetWindowPos(Below(2) == 0 ? &CWnd::wndBottom : static_cast<CWnd*>(&other), 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE);
        break;
    case 8:
        wnd.ShowWindow(Below(2) == 0 ? SW_HIDE : SW_SHOW);
        break;
    case 9:
        wnd.SetFocus();
        break;
    case 10:
        Below(2) == 0 ? static_cast<void>(wnd.SetCapture()) : static_cast<void>(ReleaseCapture());
        break;
    case 11:
        wnd.InvalidateRect(rc);
        break;
    case 12:
        wnd.SetParent(Below(3) == 0 ? &m_main : static_cast<CWnd*>(&other));
        break;
    default:
        if (nDepth == 0)
            wnd.UpdateWindow();
        else
            wnd.PostMessage(WM_USER);
        break;
    }
    --nNested;
}

// Painter's order in the plainest way. A window paints all it may paint; a parent that does not clip its
// children lies below them.
COLORREF MonkeyTest::Expected(int x, int y)
{
    COLORREF color = GetSysColor(COLOR_3DFACE);
    POINT pt{x, y};
    CWnd* pWnd = &m_main;
    CRect rc;
    pWnd->GetWindowRect(rc);
    if (!rc.PtInRect(pt))
        return color;
    while (pWnd) {
        color = static_cast<CLogWnd*>(pWnd)->m_color;
        CWnd* pChild = pWnd->GetTopWindow();
        for (; pChild; pChild = pChild->GetNextWindow()) {
            pChild->GetWindowRect(rc);
            if ((pChild->GetStyle() & WS_VISIBLE) != 0 && rc.PtInRect(pt))
                break;
        }
        pWnd = pChild;
    }
    return color;
}

void MonkeyTest::Compare()
{
    splitframe::PaintNow();
    for (int y = 0; y < 70; y += 3) {
        for (int x = 0; x < 90; x += 3)
            ASSERT_EQ(Pixel(x, y), Expected(x, y)) << x << "," << y << "\n"
                                                   << Narrow(splitframe::DumpWindowTree());
    }
}

TEST_F(MonkeyTest, TheTreeStaysSoundAndTheScreenTrue)
{
    const char* pszSeed = std::getenv("SPLITFRAME_SEED");
    const unsigned nSeed = pszSeed ? static_cast<unsigned>(std::strtoul(pszSeed, nullptr, 10)) : 20250101U;
    SCOPED_TRACE(testing::Message() << "repeat with SPLITFRAME_SEED=" << nSeed);
    Start(nSeed);
    for (int n = 0; n < 6000; ++n) {
        SCOPED_TRACE(n);
        Step(0);
        const CString strFault = splitframe::CheckWindowTree();
        ASSERT_TRUE(strFault.IsEmpty()) << Narrow(strFault) << "\n" << Narrow(splitframe::DumpWindowTree());
        if (Below(4) == 0)
            Drain();
        if (Below(4) == 0) {
            Compare();
            if (HasFatalFailure())
                return;
        }
    }
    m_windows.clear();
}

} // namespace
