// Message boxes as windows: answers by mouse and keys, the disabled owner, and what may go meanwhile.
#include "window/TestWindow.h"

#include "platform/window/MessageBox.h"

namespace {

using splitframe::CMessageBox;

class MessageBoxTest : public WindowTest
{
protected:
    MessageBoxTest() : m_main("m", &m_log), m_pane("p", &m_log)
    {
        auto pDisplay = std::make_unique<ScriptedDisplay>();
        m_pScripted = pDisplay.get();
        splitframe::SetDisplay(std::move(pDisplay));
        Screen().SetMessageBoxAnswer([](const splitframe::MessageBoxRequest&) { return 0; });
        m_main.Open(nullptr, {0, 0, 400, 300});
        m_pane.Open(&m_main, {0, 0, 400, 100});
        m_pane.SetFocus();
        Drain();
    }
    ~MessageBoxTest() override
    {
        EXPECT_EQ(Box(), nullptr);
        EXPECT_TRUE(!m_main.GetSafeHwnd() || m_main.IsWindowEnabled());
    }
    static CMessageBox* Box()
    {
        return DYNAMIC_DOWNCAST(CMessageBox, CWnd::FromHandle(GetTopWindow(nullptr)));
    }
    int Ask(UINT nType, std::initializer_list<std::function<void()>> steps)
    {
        m_pScripted->script = steps;
        return m_pane.MessageBox(L"Text", L"Caption", nType);
    }
    void Press(UINT nKey)
    {
        Screen().PressKey(nKey);
        Screen().ReleaseKey(nKey);
    }
    void ClickButton(int nButton)
    {
        CRect rc = Box()->GetButtonRect(nButton);
        Box()->ClientToScreen(&rc);
        Screen().Click(rc.CenterPoint().x, rc.CenterPoint().y);
    }

    ScriptedDisplay* m_pScripted = nullptr;
    CLogWnd m_main, m_pane;
};

TEST_F(MessageBoxTest, EveryFormAnswersItsButtonsByMouse)
{
    struct Case
    {
        UINT nType;
        std::vector<int> ids;
    };
    const Case cases[] = {
        {MB_OK, {IDOK}},
        {MB_OKCANCEL | MB_ICONERROR, {IDOK, IDCANCEL}},
        {MB_ABORTRETRYIGNORE | MB_ICONWARNING, {IDABORT, IDRETRY, IDIGNORE}},
        {MB_YESNOCANCEL | MB_ICONQUESTION, {IDYES, IDNO, IDCANCEL}},
        {MB_YESNO | MB_ICONINFORMATION, {IDYES, IDNO}},
        {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
    };
    for (const Case& c : cases) {
        for (int n = 0; n < static_cast<int>(c.ids.size()); ++n) {
            const int nAnswer =
                Ask(c.nType, {[&] {
                                  EXPECT_EQ(Box()->GetButtonCount(), static_cast<int>(c.ids.size()));
                                  EXPECT_FALSE(m_main.IsWindowEnabled());
                                  EXPECT_EQ(GetActiveWindow(), Box()->GetSafeHwnd());
                                  Screen().Click(5, 5); // the owner hears nothing
                              },
                              [&] { ClickButton(n); }});
            EXPECT_EQ(nAnswer, c.ids[static_cast<std::size_t>(n)]);
            EXPECT_EQ(GetFocus(), m_pane.GetSafeHwnd()) << "the focus is back where it was";
            EXPECT_EQ(GetActiveWindow(), m_main.GetSafeHwnd());
        }
    }
    EXPECT_EQ(Told().find("down"), std::string::npos);
}

TEST_F(MessageBoxTest, Keys)
{
    struct Case
    {
        const char* what;
        UINT nType;
        std::vector<UINT> keys;
        int nAnswer;
    };
    const Case cases[] = {
        {"Enter presses the first", MB_YESNOCANCEL, {VK_RETURN}, IDYES},
        {"or the default", MB_YESNOCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDCANCEL},
        {"a default that is not there", MB_YESNO | MB_DEFBUTTON3, {VK_SPACE}, IDYES},
        {"Tab goes on and round", MB_YESNO, {VK_TAB, VK_TAB, VK_TAB, VK_RETURN}, IDNO},
        {"arrows too", MB_YESNOCANCEL, {VK_RIGHT, VK_DOWN, VK_LEFT, VK_RETURN}, IDNO},
        {"Escape cancels", MB_RETRYCANCEL, {VK_ESCAPE}, IDCANCEL},
        {"Escape where there is one button", MB_OK, {VK_ESCAPE}, IDOK},
        {"Escape does not decide", MB_YESNO, {VK_ESCAPE, VK_F10, VK_MENU, 'N', VK_RETURN}, IDYES},
        {"nobody answers", MB_YESNO, {}, IDNO},
        {"nobody answers", MB_OKCANCEL, {}, IDCANCEL},
    };
    for (const Case& c : cases) {
        const int nAnswer = Ask(c.nType, {[&] {
                                    for (const UINT nKey : c.keys)
                                        Press(nKey);
                                }});
        EXPECT_EQ(nAnswer, c.nAnswer) << c.what;
    }
    EXPECT_EQ(Ask(MB_YESNO, {[&] { Screen().TypeText(L"n"); }}), IDNO);
    EXPECT_EQ(Ask(MB_ABORTRETRYIGNORE, {[&] {
                      Screen().PressKey(VK_MENU);
                      Press('I');
                      Screen().ReleaseKey(VK_MENU);
                  }}),
              IDIGNORE);
    EXPECT_EQ(Ask(MB_YESNO, {[&] { Screen().RequestClose(); }, [&] { Screen().TypeText(L"Y"); }}), IDYES);
    EXPECT_EQ(Ask(MB_OKCANCEL, {[&] { Screen().RequestClose(); }}), IDCANCEL);
}

TEST_F(MessageBoxTest, LongTextsAreWrappedAndTheButtonsStayInSight)
{
    CString strText;
    for (int n = 0; n < 300; ++n)
        strText += L"many words ";
    m_pScripted->script = {[&] {
        CRect rc;
        Box()->GetWindowRect(&rc);
        CRect rcButton = Box()->GetButtonRect(0);
        Box()->ClientToScreen(&rcButton);
        for (const CRect& each : {rc, rcButton}) {
            EXPECT_GE(each.top, 0);
            EXPECT_LE(each.bottom, 300);
            EXPECT_LE(each.right, 400);
        }
        Press(VK_RETURN);
    }};
    EXPECT_EQ(AfxMessageBox(strText, MB_ICONWARNING), IDOK);
}

TEST_F(MessageBoxTest, BoxesNestAndTheirOwnersMayGo)
{
    int nInner = 0;
    m_main.m_on[WM_USER] = [&] { nInner = AfxMessageBox(L"inner", MB_OKCANCEL); };
    const int nOuter = Ask(MB_YESNO, {[&] { m_main.PostMessage(WM_USER); }, [&] { Press(VK_ESCAPE); },
                                      [&] {
                                          EXPECT_EQ(nInner, IDCANCEL);
                                          EXPECT_FALSE(m_main.IsWindowEnabled());
                                          Press(VK_RETURN);
                                      }});
    EXPECT_EQ(nOuter, IDYES);
    EXPECT_EQ(Ask(MB_YESNO, {[&] { Box()->DestroyWindow(); }}), IDNO);
    EXPECT_EQ(Ask(MB_OKCANCEL, {[&] { PostQuitMessage(7); }}), IDCANCEL);
    MSG msg{};
    EXPECT_FALSE(GetMessage(&msg));
    EXPECT_EQ(msg.wParam, 7U) << "the quit message is still there for the loop outside";
    EXPECT_EQ(Ask(MB_OKCANCEL, {[&] { m_pane.DestroyWindow(); }, [&] { Press(VK_RETURN); }}), IDOK);
    m_main.m_on[WM_USER] = [&] { m_main.DestroyWindow(); };
    m_pScripted->script = {[&] { m_main.PostMessage(WM_USER); },
                           [&] { ADD_FAILURE() << "the box goes with its owner"; }};
    EXPECT_EQ(AfxMessageBox(L"gone", MB_YESNOCANCEL), IDCANCEL);
    m_pScripted->script = {[&] { Press(VK_RETURN); }};
    EXPECT_EQ(AfxMessageBox(L"without any window", MB_OKCANCEL), IDOK);
}

} // namespace
