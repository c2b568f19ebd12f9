// Creation, destruction, stale handles, and windows that die inside their own handlers.
#include "window/TestWindow.h"

#include "platform/base/Exception.h"

#include <stdexcept>

namespace {

using LifetimeTest = WindowTest;

TEST_F(LifetimeTest, CreationTellsCreateThenPlaceThenShow)
{
    CLogWnd wnd("w", &m_log);
    ASSERT_TRUE(wnd.Open(nullptr, {10, 20, 110, 70}));
    EXPECT_EQ(Told(), "w:create | w:move 10,20 | w:size 100,50 | w:show | w:active");
    EXPECT_FALSE(wnd.Open(nullptr, {0, 0, 1, 1})) << "an object has one window";
}

TEST_F(LifetimeTest, DestroyingGoesDownThenUp)
{
    CLogWnd wndParent("p", &m_log);
    CLogWnd wndChild("c", &m_log);
    CLogWnd wndInner("i", &m_log);
    wndParent.Open(nullptr, {0, 0, 100, 100});
    wndChild.Open(&wndParent, {0, 0, 50, 50});
    wndInner.Open(&wndChild, {0, 0, 10, 10});
    const HWND hInner = wndInner;
    Told();
    EXPECT_TRUE(wndParent.DestroyWindow());
    EXPECT_EQ(Told(), "p:begin | p:inactive | p:destroy | c:destroy | i:destroy | i:ncdestroy | i:post | "
                      "c:ncdestroy | c:post | p:ncdestroy | p:post");
    EXPECT_FALSE(IsWindow(hInner));
    EXPECT_EQ(wndParent.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(wndParent.DestroyWindow());
}

TEST_F(LifetimeTest, RefusedOrThrowingCreationLeavesNothing)
{
    CLogWnd wndRefused("r", &m_log);
    wndRefused.m_bRefuse = true;
    EXPECT_FALSE(wndRefused.Open(nullptr, {0, 0, 9, 9}));
    EXPECT_EQ(Told(), "r:create | r:begin | r:destroy | r:ncdestroy | r:post");
    EXPECT_EQ(wndRefused.GetSafeHwnd(), nullptr);

    CLogWnd wndThrowing("t", &m_log);
    wndThrowing.m_on[WM_CREATE] = [] { AfxThrowInvalidArgException(); };
    EXPECT_FALSE(wndThrowing.Open(nullptr, {0, 0, 9, 9}));
    EXPECT_EQ(TakeDiagnostics().size(), 1U);
    EXPECT_EQ(Narrow(splitframe::DumpWindowTree()), "");
}

TEST_F(LifetimeTest, StaleHandlesAreHarmless)
{
    HWND hStale = nullptr;
    {
        CPlainWnd wnd;
        wnd.Open(nullptr, {0, 0, 10, 10});
        hStale = wnd;
        PostMessage(hStale, WM_USER);
        SetTimer(hStale, 7, 10);
        SetCapture(hStale);
    }
    CPlainWnd wndNext; // takes the same record
    wndNext.Open(nullptr, {0, 0, 10, 10});
    RECT rc{1, 1, 1, 1};
    for (const HWND hBad :
         {hStale, static_cast<HWND>(nullptr), HWND_BOTTOM, reinterpret_cast<HWND>(~std::uintptr_t{0})}) {
        EXPECT_FALSE(IsWindow(hBad));
        EXPECT_FALSE(DestroyWindow(hBad));
        EXPECT_FALSE(SetWindowPos(hBad, nullptr, 1, 1, 1, 1, 0));
        EXPECT_FALSE(GetWindowRect(hBad, &rc));
        EXPECT_EQ(SendMessage(hBad, WM_CLOSE), 0);
        EXPECT_FALSE(PostMessage(hBad, WM_USER));
        EXPECT_EQ(GetWindow(hBad, GW_HWNDNEXT), nullptr);
        EXPECT_EQ(CWnd::FromHandle(hBad), nullptr);
        EXPECT_FALSE(InvalidateRect(hBad, nullptr, TRUE));
        EXPECT_FALSE(KillTimer(hBad, 7));
        EXPECT_FALSE(IsWindowVisible(hBad));
    }
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_TRUE(IsWindow(wndNext));
}

TEST_F(LifetimeTest, SendingDestroyByHandDestroysNothing)
{
    CLogWnd wnd("w", &m_log);
    wnd.Open(nullptr, {0, 0, 10, 10});
    wnd.SendMessage(WM_DESTROY);
    EXPECT_TRUE(IsWindow(wnd));
    Told();
    wnd.DestroyWindow();
    EXPECT_NE(Told().find("w:destroy"), std::string::npos) << "and is still told when it dies";
}

TEST_F(LifetimeTest, AWindowMayDieInsideAnyOfItsHandlers)
{
    const UINT messages[] = {WM_CREATE,         WM_SIZE,       WM_MOVE,    WM_SHOWWINDOW, WM_SETFOCUS,
                             WM_KILLFOCUS,      WM_PAINT,      WM_TIMER,   WM_MOUSEMOVE,  WM_LBUTTONDOWN,
                             WM_CAPTURECHANGED, WM_ERASEBKGND, WM_KEYDOWN, WM_USER,       WM_DESTROY,
                             WM_NCDESTROY,      WM_ACTIVATE};
    for (const UINT nMessage : messages) {
        for (const bool bDeleteObject : {false, true}) {
            SCOPED_TRACE(testing::Message() << "message " << nMessage << " deleting " << bDeleteObject);
            CLogWnd wndMain("m", nullptr);
            CLogWnd wndOther("o", nullptr);
            wndMain.Open(nullptr, {0, 0, 400, 300});
            wndOther.Open(&wndMain, {0, 0, 400, 300});
            auto pVictim = std::make_unique<CLogWnd>("v", nullptr);
            CLogWnd wndChild("c", nullptr);
            pVictim->m_on[nMessage] = [&] {
                if (bDeleteObject)
                    pVictim.reset();
                else
                    pVictim->DestroyWindow();
            };
            pVictim->Open(&wndMain, {0, 0, 100, 100});
            if (pVictim)
                wndChild.Open(pVictim.get(), {0, 0, 50, 50});
            const auto bAlive = [&] { return pVictim && pVictim->GetSafeHwnd(); };
            if (bAlive())
                pVictim->MoveWindow(1, 2, 90, 80);
            if (bAlive())
                pVictim->SetFocus();
            if (bAlive())
                pVictim->SetCapture();
            if (bAlive())
                ReleaseCapture();
            wndOther.SetFocus();
            if (bAlive()) {
                pVictim->SetFocus();
                pVictim->SetTimer(1, 10);
                pVictim->PostMessage(WM_USER);
            }
            Screen().Click(95, 75);
            Screen().PressKey('A');
            Screen().AdvanceClock(20);
            Drain();
            if (bAlive())
                pVictim->SendMessage(WM_ACTIVATE, WA_ACTIVE);
            if (bAlive())
                pVictim->DestroyWindow();
            EXPECT_FALSE(bAlive());
            EXPECT_EQ(Narrow(splitframe::CheckWindowTree()), "");
            EXPECT_TRUE(wndMain.IsWindowVisible());
        }
    }
}

TEST_F(LifetimeTest, HandlersMayDestroyParentAndSiblingsMeanwhile)
{
    CLogWnd wndParent("p", &m_log);
    CLogWnd wndA("a", &m_log);
    CLogWnd wndB("b", &m_log);
    wndParent.Open(nullptr, {0, 0, 100, 100});
    wndA.Open(&wndParent, {0, 0, 50, 50});
    wndB.Open(&wndParent, {50, 0, 100, 50});
    wndA.m_on[WM_DESTROY] = [&] { wndB.DestroyWindow(); };
    wndA.m_on[WM_NCDESTROY] = [&] { wndParent.DestroyWindow(); };
    wndParent.m_on[WM_DESTROY] = [&] { EXPECT_FALSE(CPlainWnd().Open(&wndParent, {0, 0, 1, 1})); };
    wndA.DestroyWindow();
    EXPECT_FALSE(wndParent.GetSafeHwnd());
    EXPECT_FALSE(wndB.GetSafeHwnd());
    EXPECT_EQ(Narrow(splitframe::DumpWindowTree()), "");
}

TEST_F(LifetimeTest, ABeginDestroyHookMayDestroyTheWindowItself)
{
    CLogWnd wnd("w", &m_log);
    wnd.Open(nullptr, {0, 0, 10, 10});
    wnd.m_onBeginDestroy = [&] {
        wnd.m_onBeginDestroy = nullptr;
        wnd.DestroyWindow();
    };
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_FALSE(wnd.GetSafeHwnd());
}

TEST_F(LifetimeTest, ExceptionsOfEveryTypeAreReportedAndAnswerZero)
{
    struct Case
    {
        const char* what;
        std::function<void()> raise;
    };
    const Case cases[] = {
        {"by pointer", [] { AfxThrowInvalidArgException(); }},
        {"of the standard library", [] { throw std::runtime_error("boom"); }},
        {"a number", [] { throw 42; }},
    };
    CLogWnd wnd("w", nullptr);
    wnd.Open(nullptr, {0, 0, 10, 10});
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        wnd.m_on[WM_USER] = c.raise;
        EXPECT_EQ(wnd.SendMessage(WM_USER, 5), 0);
        EXPECT_EQ(TakeDiagnostics().size(), 1U);
    }
    wnd.m_on.clear();
    EXPECT_EQ(wnd.SendMessage(WM_USER, 5), 6);
}

TEST_F(LifetimeTest, NestingHasALimit)
{
    std::vector<std::unique_ptr<CPlainWnd>> windows;
    CWnd* pParent = nullptr;
    for (int n = 0; n < 200; ++n) {
        windows.push_back(std::make_unique<CPlainWnd>());
        if (!windows.back()->Open(pParent, {0, 0, 100, 100}))
            break;
        pParent = windows.back().get();
    }
    EXPECT_GT(windows.size(), 40U);
    EXPECT_LT(windows.size(), 100U);
    EXPECT_EQ(SetParent(*windows[1], *windows[5]), nullptr) << "no circles";
    while (!windows.empty())
        windows.pop_back();
}

TEST_F(LifetimeTest, DeleteLaterWaitsForTheOutermostCall)
{
    class CCounted : public CObject
    {
    public:
        explicit CCounted(int& n) : m_n(n) { ++m_n; }
        ~CCounted() override { --m_n; }
        int& m_n;
    };
    int nAlive = 0;
    DeleteLater(new CCounted(nAlive));
    EXPECT_EQ(nAlive, 0) << "at once outside of any call";
    CLogWnd wnd("w", nullptr);
    wnd.Open(nullptr, {0, 0, 10, 10});
    wnd.m_on[WM_USER] = [&] {
        auto* pObject = new CCounted(nAlive);
        DeleteLater(pObject);
        DeleteLater(pObject);
        EXPECT_EQ(nAlive, 1);
    };
    wnd.SendMessage(WM_USER);
    EXPECT_EQ(nAlive, 0);
}

} // namespace
