// Message maps: inheritance, ranges, commands and their looks.
#include "window/TestWindow.h"

namespace {

class CBaseTarget : public CWnd
{
public:
    std::string m_strLog;
    void OnFirst() { m_strLog += "base-first "; }
    void OnRange(UINT nID) { m_strLog += "range" + std::to_string(nID) + " "; }
    LRESULT OnOwn(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam * 2); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseTarget, CWnd)
ON_COMMAND(1, &CBaseTarget::OnFirst)
ON_COMMAND_RANGE(500, 600, &CBaseTarget::OnRange)
ON_MESSAGE(WM_USER + 1, &CBaseTarget::OnOwn)
END_MESSAGE_MAP()

class CDerivedTarget : public CBaseTarget
{
protected:
    void OnFirst() { m_strLog += "derived-first "; }
    void OnUpdateFirst(CCmdUI* pCmdUI) { pCmdUI->SetCheck(1); }
    void OnUpdateGray(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedTarget, CBaseTarget)
ON_COMMAND(1, &CDerivedTarget::OnFirst)
ON_UPDATE_COMMAND_UI(1, &CDerivedTarget::OnUpdateFirst)
ON_UPDATE_COMMAND_UI(500, &CDerivedTarget::OnUpdateGray)
END_MESSAGE_MAP()

using CommandTest = WindowTest;

TEST_F(CommandTest, CommandsReachTheMostDerivedHandler)
{
    CDerivedTarget target;
    target.Create(nullptr, L"", 0, CRect(0, 0, 9, 9), nullptr, 0);
    for (const UINT nID : {1U, 500U, 600U, 601U, 499U})
        target.SendMessage(WM_COMMAND, nID);
    EXPECT_EQ(target.m_strLog, "derived-first range500 range600 ");
    EXPECT_EQ(target.SendMessage(WM_COMMAND, 1), 1);
    EXPECT_EQ(target.SendMessage(WM_COMMAND, 2), 0);
    EXPECT_EQ(target.SendMessage(WM_USER + 1, 21), 42) << "a base class's entry";
    EXPECT_EQ(target.SendMessage(WM_USER + 1 + 64, 21), 0) << "the same place in the cache";
    EXPECT_EQ(target.SendMessage(WM_USER + 1, 3), 6);
}

} // namespace
