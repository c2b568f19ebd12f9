// Whose turn it is: posted messages, input, painting, timers; posting from other threads; the end.
#include "window/TestWindow.h"

#include <thread>

namespace {

class LoopTest : public WindowTest
{
protected:
    LoopTest() : m_main("m", &m_log)
    {
        m_main.Open(nullptr, {0, 0, 400, 300});
        Drain();
        Told();
    }
    CLogWnd m_main;
};

TEST_F(LoopTest, PostedThenInputThenPaintingThenTimers)
{
    m_main.SetTimer(3, 10);
    Screen().AdvanceClock(100);
    m_main.Invalidate();
    Screen().MoveMouse(1, 2);
    m_main.PostMessage(WM_USER, 1);
    m_main.PostMessage(WM_USER, 2);
    Drain();
    EXPECT_EQ(Told(), "m:user 1 | m:user 2 | m:mouse 1,2 | m:paint | m:timer 3");
    Screen().AdvanceClock(95);
    Drain();
    EXPECT_EQ(Told(), "m:timer 3") << "one message a timer, however late";
    EXPECT_TRUE(KillTimer(m_main, 3));
    Screen().AdvanceClock(100);
    Drain();
    EXPECT_EQ(Told(), "");
}

TEST_F(LoopTest, AStreamOfPostedMessagesStarvesNobody)
{
    int nPosted = 0;
    m_main.m_on[WM_USER] = [&] {
        Screen().AdvanceClock(1);
        if (++nPosted < 40)
            m_main.PostMessage(WM_USER);
    };
    m_main.PostMessage(WM_USER);
    m_main.Invalidate();
    Screen().MoveMouse(1, 2);
    Drain();
    const auto position = [&](const char* pszWhat) {
        return std::find(m_log.begin(), m_log.end(), pszWhat) - m_log.begin();
    };
    EXPECT_LE(position("m:mouse 1,2"), 10);
    EXPECT_EQ(position("m:paint"), position("m:mouse 1,2") + 1);
    EXPECT_EQ(nPosted, 40);
}

TEST_F(LoopTest, AfterOneLongPostedMessageInputHasItsTurn)
{
    m_main.m_on[WM_USER] = [&] { Screen().AdvanceClock(20); };
    m_main.PostMessage(WM_USER, 1);
    m_main.PostMessage(WM_USER, 2);
    m_main.Invalidate();
    Screen().MoveMouse(1, 2);
    Drain();
    EXPECT_EQ(Told(), "m:user 1 | m:mouse 1,2 | m:paint | m:user 2");
}

// A worker that nobody stops may still post while the process ends.
TEST_F(LoopTest, PostingWhileTheProcessEndsIsHarmless)
{
    const HWND hWnd = m_main;
    EXPECT_EXIT(
        {
            for (int n = 0; n < 2; ++n) {
                std::thread([hWnd] {
                    for (;;)
                        PostMessage(hWnd, WM_USER);
                }).detach();
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(LoopTest, ManyThreadsPostInTheirOrder)
{
    constexpr WPARAM MESSAGES = 2000;
    std::vector<WPARAM> last(4, 0);
    std::size_t nCount = 0;
    bool bInOrder = true;
    class CCounting : public CWnd
    {
    public:
        std::function<void(WPARAM)> m_onUser;

    private:
        LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
        {
            if (nMessage == WM_USER + 1)
                m_onUser(wParam);
            return CWnd::WindowProc(nMessage, wParam, lParam);
        }
    };
    CCounting wnd;
    wnd.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 1, 1), &m_main, 0);
    wnd.m_onUser = [&](WPARAM wParam) {
        WPARAM& nLast = last[wParam / MESSAGES];
        bInOrder = bInOrder && wParam % MESSAGES == nLast;
        ++nLast;
        ++nCount;
    };
    const HWND hWnd = wnd;
    {
        std::vector<std::jthread> threads;
        for (WPARAM nThread = 0; nThread < 4; ++nThread) {
            threads.emplace_back([=] {
                for (WPARAM n = 0; n < MESSAGES; ++n)
                    PostMessage(hWnd, WM_USER + 1, nThread * MESSAGES + n);
            });
        }
        for (int n = 0; n < 100; ++n)
            Drain();
    }
    Drain();
    EXPECT_EQ(nCount, 4 * MESSAGES);
    EXPECT_TRUE(bInOrder);
}

TEST_F(LoopTest, APostFromAThreadWakesALoopThatWaits)
{
    auto pReal = std::make_unique<splitframe::HeadlessDisplay>(400, 300); // its clock runs
    const auto pSet = splitframe::SetDisplay(std::move(pReal));
    const HWND hWnd = m_main;
    std::jthread thread([=] { PostMessage(hWnd, WM_USER, 9); });
    MSG msg{};
    do {
        ASSERT_TRUE(GetMessage(&msg));
    } while (msg.message != WM_USER);
    EXPECT_EQ(msg.wParam, 9U);
    thread.join();
    splitframe::SetDisplay(nullptr);
    auto pAgain = std::make_unique<splitframe::HeadlessDisplay>(400, 300);
    pAgain->SetClock(1000);
    splitframe::SetDisplay(std::move(pAgain));
}

TEST_F(LoopTest, QuitComesAfterWhatWasPosted)
{
    PostQuitMessage(5);
    m_main.PostMessage(WM_USER, 1);
    MSG msg{};
    EXPECT_TRUE(GetMessage(&msg));
    EXPECT_EQ(msg.message, WM_USER);
    EXPECT_FALSE(GetMessage(&msg));
    EXPECT_EQ(msg.message, WM_QUIT);
    EXPECT_EQ(msg.wParam, 5U);
    EXPECT_FALSE(GetMessage(&msg)) << "a clock that stands still: nothing can come any more";
    EXPECT_EQ(msg.message, WM_NULL);
}

TEST_F(LoopTest, PeekingLeavesTheMessage)
{
    MSG msg{};
    m_main.PostMessage(WM_USER, 1);
    EXPECT_TRUE(PeekMessage(&msg, PM_NOREMOVE));
    EXPECT_TRUE(PeekMessage(&msg, PM_REMOVE));
    EXPECT_FALSE(PeekMessage(&msg, PM_NOREMOVE));
    Screen().MoveMouse(3, 4);
    EXPECT_TRUE(PeekMessage(&msg, PM_NOREMOVE));
    EXPECT_TRUE(PeekMessage(&msg, PM_REMOVE));
    EXPECT_EQ(msg.message, WM_MOUSEMOVE);
    EXPECT_FALSE(PeekMessage(&msg, PM_REMOVE));
}

} // namespace
