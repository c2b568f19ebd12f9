// The main frame's menu bar as a user works with it, and the commands that come of it.
#include "platform/display/Headless.h"
#include "platform/docking/BCGPMDIFrameWnd.h"
#include "platform/docking/MenuBar.h"
#include "platform/docview/WinApp.h"
#include "platform/window/Menu.h"
#include "platform/window/PopupMenu.h"

#include <gtest/gtest.h>

namespace {

using splitframe::CMenuBar;
using splitframe::CPopupMenu;
using splitframe::DrainMessages;

constexpr UINT ID_TAKEN = 900;
constexpr UINT ID_UNKNOWN = 901; // nobody handles it
constexpr UINT ID_CHECKED = 902;

class MenuMain : public CBCGPMDIFrameWnd
{
public:
    std::string m_strLog;
    std::function<void()> m_onUpdate;

protected:
    void OnTaken() { m_strLog += "taken "; }
    void OnChecked() { m_strLog += "checked "; }
    void OnUpdateChecked(CCmdUI* pCmdUI)
    {
        pCmdUI->SetCheck(1);
        pCmdUI->SetText(L"Now &checked");
        if (m_onUpdate)
            m_onUpdate();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuMain, CBCGPMDIFrameWnd)
ON_COMMAND(ID_TAKEN, &MenuMain::OnTaken)
ON_COMMAND(ID_CHECKED, &MenuMain::OnChecked)
ON_UPDATE_COMMAND_UI(ID_CHECKED, &MenuMain::OnUpdateChecked)
END_MESSAGE_MAP()

class Menus : public testing::Test
{
protected:
    Menus()
    {
        splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(500, 300));
        Screen().SetClock(1000);
        m_pMain = new MenuMain;
        m_app.m_pMainWnd = m_pMain;
        EXPECT_TRUE(m_pMain->LoadFrame(1));
        m_pMain->ActivateFrame(SW_SHOW);
        m_hFile = ::CreatePopupMenu();
        ::AppendMenuW(m_hFile, MF_STRING, ID_UNKNOWN, L"&Unknown");
        ::AppendMenuW(m_hFile, MF_STRING, ID_TAKEN, L"&Taken\tF7");
        ::AppendMenuW(m_hFile, MF_STRING, ID_CHECKED, L"&Checked");
        m_pMain->AppendMenuBarPopup(m_hFile, L"&File");
        DrainMessages();
    }
    ~Menus() override
    {
        if (m_app.m_pMainWnd)
            m_pMain->DestroyWindow();
        DrainMessages();
        EXPECT_EQ(::GetTopWindow(nullptr), nullptr);
        splitframe::SetDisplay(nullptr);
    }
    static splitframe::HeadlessDisplay& Screen() { return *splitframe::CurrentHeadless(); }
    static CPopupMenu* Popup()
    {
        return DYNAMIC_DOWNCAST(CPopupMenu, CWnd::FromHandle(::GetTopWindow(nullptr)));
    }
    CMenuBar& Bar() const { return static_cast<CMenuBar&>(*m_pMain->GetMenuBarWnd()); }
    static void Click(CPoint pt)
    {
        Screen().Click(pt.x, pt.y);
        DrainMessages();
    }
    static void Press(UINT nKey)
    {
        Screen().PressKey(nKey);
        Screen().ReleaseKey(nKey);
        DrainMessages();
    }

    CWinApp m_app;
    MenuMain* m_pMain = nullptr; // deletes itself
    HMENU m_hFile = nullptr;
};

TEST_F(Menus, ItemsLookAsTheirHandlersSayAndCommandsFollowTheMenu)
{
    Click(Bar().GetTitleRect(0).CenterPoint());
    ASSERT_NE(Popup(), nullptr);
    EXPECT_EQ(Bar().GetMarkedItem(), 0);
    EXPECT_EQ(::GetMenuState(m_hFile, 0, MF_BYPOSITION), MF_GRAYED) << "nobody handles it";
    EXPECT_EQ(::GetMenuState(m_hFile, 2, MF_BYPOSITION), MF_CHECKED);
    EXPECT_EQ(Popup()->GetLabels(), (std::vector<CString>{L"", L"&Taken", L"Now &checked"}));
    CRect rc;
    Popup()->GetWindowRect(&rc);
    EXPECT_EQ(rc.left, Bar().GetTitleRect(0).left);
    EXPECT_EQ(rc.top, Bar().GetTitleRect(0).bottom);
    Click(Popup()->GetLineRect(1).CenterPoint());
    EXPECT_EQ(m_pMain->m_strLog, "taken ");
    EXPECT_EQ(Bar().GetMarkedItem(), -1);
    Press(VK_MENU);
    EXPECT_EQ(Bar().GetMarkedItem(), 0);
    for (const UINT nKey : {VK_DOWN, VK_DOWN, VK_RETURN})
        Press(nKey);
    EXPECT_EQ(m_pMain->m_strLog, "taken checked ");
    m_pMain->EnableWindow(FALSE);
    Press(VK_F10);
    EXPECT_EQ(Bar().GetMarkedItem(), -1) << "something modal is open";
    m_pMain->EnableWindow(TRUE);
}

TEST_F(Menus, AnUpdateHandlerMayDestroyWhatItIsAskedFor)
{
    const std::function<void()> deeds[] = {
        [&] { ::DeleteMenu(m_hFile, 0, MF_BYPOSITION); },
        [&] { m_pMain->SetMenuBar(static_cast<HMENU>(nullptr)); },
        [&] { m_pMain->DestroyWindow(); },
    };
    for (const auto& deed : deeds) {
        m_pMain->m_onUpdate = [&] {
            m_pMain->m_onUpdate = nullptr;
            deed();
        };
        Press(VK_F10);
        Press(VK_DOWN);
        Press(VK_ESCAPE);
        Press(VK_ESCAPE);
        EXPECT_EQ(Popup(), nullptr);
        if (m_app.m_pMainWnd && !m_pMain->GetMenuBar()) {
            m_hFile = ::CreatePopupMenu();
            ::AppendMenuW(m_hFile, MF_STRING, ID_CHECKED, L"&Checked");
            m_pMain->AppendMenuBarPopup(m_hFile, L"&File");
        }
    }
}

// The bar paints what it marks, the popup covers what is below, and both leave no trace.
TEST_F(Menus, NothingIsLeftOnTheScreenWhenAMenuCloses)
{
    const auto picture = [] {
        std::vector<COLORREF> pixels;
        for (int y = 0; y < 300; y += 3) {
            for (int x = 0; x < 500; x += 3)
                pixels.push_back(Screen().Shown().GetPixel(x, y));
        }
        return pixels;
    };
    const std::vector<COLORREF> before = picture();
    Click(Bar().GetTitleRect(0).CenterPoint());
    EXPECT_NE(picture(), before);
    Press(VK_ESCAPE);
    Press(VK_ESCAPE);
    EXPECT_EQ(picture(), before);
}

} // namespace
