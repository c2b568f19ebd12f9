// Menus, accelerators, commands.
#include "MainFrame.h"

#include "Application.h"
#include "Commands.h"

#include <frame/BaseFrameChildWnd.h>
#include <platform/docview/Accelerator.h>
#include <platform/window/Menu.h>
#include <platform/window/MessageLoop.h>
#include <unit/BaseUnitWnd.h>

#include <initializer_list>
#include <iterator>

namespace {

struct MenuLine
{
    UINT nID; // 0: a separator
    const wchar_t* pszText;
};

HMENU MakePopup(std::initializer_list<MenuLine> lines)
{
    HMENU hMenu = ::CreatePopupMenu();
    for (const MenuLine& line : lines)
        ::AppendMenuW(hMenu, line.nID == 0 ? MF_SEPARATOR : MF_STRING, line.nID, line.pszText);
    return hMenu;
}

} // namespace

IMPLEMENT_DYNAMIC(CMainFrame, CBaseFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CBaseFrameWnd)
ON_COMMAND(ID_FILE_CLOSE_FRAME, &CMainFrame::OnFileCloseFrame)
ON_COMMAND(ID_FILE_EXIT, &CMainFrame::OnFileExit)
ON_COMMAND(ID_VIEW_NEXT_FRAME, &CMainFrame::OnViewNextFrame)
ON_COMMAND(ID_VIEW_PREVIOUS_FRAME, &CMainFrame::OnViewPreviousFrame)
ON_COMMAND(ID_VIEW_GRID, &CMainFrame::OnViewGrid)
ON_COMMAND(ID_VIEW_LIMITS, &CMainFrame::OnViewLimits)
ON_COMMAND(ID_PLANT_PAUSE, &CMainFrame::OnPlantPause)
ON_COMMAND(ID_PLANT_ACKNOWLEDGE, &CMainFrame::OnPlantAcknowledge)
ON_COMMAND(ID_HELP_ABOUT, &CMainFrame::OnHelpAbout)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_NEXT_FRAME, ID_VIEW_PREVIOUS_FRAME, &CMainFrame::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI(ID_FILE_CLOSE_FRAME, &CMainFrame::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI(ID_VIEW_GRID, &CMainFrame::OnUpdateGrid)
ON_UPDATE_COMMAND_UI(ID_VIEW_LIMITS, &CMainFrame::OnUpdateLimits)
ON_UPDATE_COMMAND_UI(ID_PLANT_PAUSE, &CMainFrame::OnUpdatePause)
END_MESSAGE_MAP()

CMainFrame::~CMainFrame()
{
    ::DestroyAcceleratorTable(m_hKeys);
}

void CMainFrame::BuildMenus()
{
    SetMenuBar(::CreateMenu());
    AppendMenuBarPopup(
        MakePopup(
            {{ID_FILE_CLOSE_FRAME, L"&Close frame\tCtrl+W"}, {0, nullptr}, {ID_FILE_EXIT, L"E&xit\tCtrl+Q"}}),
        L"&File");
    AppendMenuBarPopup(MakePopup({{ID_VIEW_NEXT_FRAME, L"&Next frame\tCtrl+PgDn"},
                                  {ID_VIEW_PREVIOUS_FRAME, L"&Previous frame\tCtrl+PgUp"},
                                  {0, nullptr},
                                  {ID_VIEW_GRID, L"&Grid lines"},
                                  {ID_VIEW_LIMITS, L"&Alarm limits"}}),
                       L"&View");
    AppendMenuBarPopup(m_hBaseFrameMenu, L"F&rames"); // built by the library from the layout definition
    AppendMenuBarPopup(MakePopup({{ID_PLANT_PAUSE, L"&Pause the feed\tF7"},
                                  {ID_PLANT_ACKNOWLEDGE, L"&Acknowledge alarms\tF12"}}),
                       L"&Plant");
    AppendMenuBarPopup(MakePopup({{ID_HELP_ABOUT, L"&About the workbench"}}), L"&Help");
    BuildAccelerators();
}

void CMainFrame::BuildAccelerators()
{
    static constexpr ACCEL KEYS[] = {
        {FVIRTKEY | FCONTROL, 'W', ID_FILE_CLOSE_FRAME},
        {FVIRTKEY | FCONTROL, 'Q', ID_FILE_EXIT},
        {FVIRTKEY | FCONTROL, VK_NEXT, ID_VIEW_NEXT_FRAME},
        {FVIRTKEY | FCONTROL, VK_PRIOR, ID_VIEW_PREVIOUS_FRAME},
        {FVIRTKEY, VK_F7, ID_PLANT_PAUSE},
        {FVIRTKEY, VK_F12, ID_PLANT_ACKNOWLEDGE},
    };
    m_hKeys = ::CreateAcceleratorTable(KEYS, static_cast<int>(std::size(KEYS)));
    SetAccelerators(m_hKeys);
}

void CMainFrame::OnFileCloseFrame()
{
    if (CMDIChildWnd* pFrame = MDIGetActive())
        pFrame->SendMessage(WM_CLOSE);
}

void CMainFrame::OnFileExit()
{
    PostMessage(WM_CLOSE);
}

void CMainFrame::OnViewNextFrame()
{
    MDINext();
}

void CMainFrame::OnViewPreviousFrame()
{
    MDINext(TRUE);
}

void CMainFrame::OnViewGrid()
{
    const Settings& settings = CWorkbenchApp::Get().GetSettings();
    ApplySettings(!settings.bGrid, settings.bLimits);
}

void CMainFrame::OnViewLimits()
{
    const Settings& settings = CWorkbenchApp::Get().GetSettings();
    ApplySettings(settings.bGrid, !settings.bLimits);
}

void CMainFrame::ApplySettings(bool bGrid, bool bLimits)
{
    Settings settings = CWorkbenchApp::Get().GetSettings();
    settings.bGrid = bGrid;
    settings.bLimits = bLimits;
    CWorkbenchApp::Get().SetSettings(settings);
    // To the units of the frame in front and to the global units; other frames paint anew when they come up.
    CBaseUnitWnd::BroadcastCommand(UNIT_CMD_SETTINGS_CHANGED, 0);
}

void CMainFrame::OnPlantPause()
{
    CWorkbenchApp& app = CWorkbenchApp::Get();
    app.GetFeed().SetPaused(!app.GetFeed().IsPaused());
    app.AddToJournal(Severity::Operator, L"Feed",
                     app.GetFeed().IsPaused() ? L"Feed paused" : L"Feed resumed");
    CBaseUnitWnd::BroadcastCommand(UNIT_CMD_JOURNAL_CHANGED, 0);
}

/// The same as Enter in a log: the helper of the frame in front does it.
void CMainFrame::OnPlantAcknowledge()
{
    if (auto* pFrame = DYNAMIC_DOWNCAST(CBaseFrameChildWnd, GetActiveFrame()))
        pFrame->ProcessHelperMessage(HELPER_MSG_ACKNOWLEDGE, 0, 0);
}

void CMainFrame::OnHelpAbout()
{
    ::AfxMessageBox(L"Pilot Plant Workbench\n\nA sample host of Splitframe. The plant is made up.");
}

void CMainFrame::OnUpdateHasFrame(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(MDIGetActive() != nullptr);
}

void CMainFrame::OnUpdateGrid(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().GetSettings().bGrid ? 1 : 0);
}

void CMainFrame::OnUpdateLimits(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().GetSettings().bLimits ? 1 : 0);
}

void CMainFrame::OnUpdatePause(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().GetFeed().IsPaused() ? 1 : 0);
}
