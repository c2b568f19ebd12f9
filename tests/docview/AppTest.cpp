// The application object: its loop, translation before dispatch, accelerators, and processes that have none.
#include "docview/Host.h"

#include "platform/docview/Accelerator.h"

namespace {

using host::MdiSession;

TEST(NoApplication, AnswersNull)
{
    EXPECT_EQ(AfxGetThread(), nullptr);
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    CMDIFrameWnd frame;
    EXPECT_TRUE(frame.LoadFrame(1)); // no title without an application
    EXPECT_EQ(frame.GetWindowText(), L"");
    EXPECT_FALSE(frame.SendMessage(WM_COMMAND, 5));
}

class Running : public MdiSession
{
};

TEST_F(Running, EndsWithTheMainWindow)
{
    EXPECT_EQ(AfxGetMainWnd(), m_pMain);
    EXPECT_EQ(AfxGetApp()->GetAppName(), L"App");
    Open("A");
    m_pMain->PostMessage(WM_CLOSE);
    EXPECT_EQ(m_app.Run(), 0);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    EXPECT_EQ(m_recorder.nFrames, 0);
}

TEST_F(Running, AnswersTheExitCodeOfTheQuitMessage)
{
    ::PostQuitMessage(7);
    EXPECT_EQ(m_app.Run(), 7);
}

TEST_F(Running, AcceleratorsBecomeCommandsAndNeedTheirModifiersExactly)
{
    const ACCEL entries[] = {{FVIRTKEY, VK_F4, 10}, {FVIRTKEY | FCONTROL, 'S', 11}, {0, '+', 12}};
    HACCEL hAccel = ::CreateAcceleratorTable(entries, 3);
    m_pMain->SetAccelerators(hAccel);
    Open("A");
    auto* pDisplay = splitframe::CurrentHeadless();
    struct Case
    {
        const char* what;
        std::function<void()> act;
        bool bCommand;
    };
    const Case cases[] = {
        {"key", [&] { pDisplay->PressKey(VK_F4); }, true},
        {"key without its modifier", [&] { pDisplay->PressKey('S'); }, false},
        {"key with its modifier",
         [&] {
             pDisplay->PressKey(VK_CONTROL);
             pDisplay->PressKey('S');
             pDisplay->ReleaseKey('S');
         },
         true},
        {"another key with it", [&] { pDisplay->PressKey(VK_F4); }, false},
        {"character",
         [&] {
             pDisplay->ReleaseKey(VK_CONTROL);
             pDisplay->TypeText(L"+");
         },
         true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        m_recorder.Take();
        c.act();
        splitframe::DrainMessages();
        EXPECT_EQ(m_recorder.Take().find("main.Command") != std::string::npos, c.bCommand);
    }
    EXPECT_TRUE(::DestroyAcceleratorTable(hAccel));
    EXPECT_FALSE(::DestroyAcceleratorTable(hAccel));
    pDisplay->PressKey(VK_F4); // a stale table translates nothing
    pDisplay->ReleaseKey(VK_F4);
    m_recorder.Take();
    splitframe::DrainMessages();
    EXPECT_EQ(m_recorder.Take().find("main.Command"), std::string::npos);
    EXPECT_EQ(::CreateAcceleratorTable(nullptr, 1), nullptr);
    EXPECT_EQ(::CreateAcceleratorTable(entries, 0), nullptr);
}

TEST_F(Running, ControlTabSwitchesFrames)
{
    Open("A");
    Open("B");
    Open("C");
    Make("hidden");
    auto* pDisplay = splitframe::CurrentHeadless();
    pDisplay->PressKey(VK_CONTROL);
    pDisplay->PressKey(VK_TAB);
    splitframe::DrainMessages();
    EXPECT_EQ(Stack(), "ACBhidden") << "from the last to the first that is shown";
    pDisplay->PressKey(VK_SHIFT);
    pDisplay->PressKey(VK_F6);
    splitframe::DrainMessages();
    EXPECT_EQ(Stack(), "CABhidden");
    pDisplay->ReleaseKey(VK_SHIFT);
    pDisplay->ReleaseKey(VK_CONTROL);
    splitframe::DrainMessages();
}

} // namespace
