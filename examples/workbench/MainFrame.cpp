// Menus, accelerators, commands.
#include "MainFrame.h"

#include "Application.h"
#include "Commands.h"
#include "units/SettingsUnit.h"

#include <document/BaseFrameDoc.h>
#include <frame/BaseFrameChildWnd.h>
#include <platform/docview/Accelerator.h>
#include <platform/window/Menu.h>
#include <platform/window/MessageLoop.h>

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
ON_WM_CLOSE()
ON_COMMAND_RANGE(CBaseFrameWnd::ID_FRAME_FIRST, CBaseFrameWnd::ID_FRAME_LAST, &CMainFrame::OnOpenStyle)
ON_COMMAND(ID_FILE_CLOSE_FRAME, &CMainFrame::OnFileCloseFrame)
ON_COMMAND(ID_FILE_EXIT, &CMainFrame::OnFileExit)
ON_COMMAND(ID_VIEW_NEXT_FRAME, &CMainFrame::OnViewNextFrame)
ON_COMMAND(ID_VIEW_PREVIOUS_FRAME, &CMainFrame::OnViewPreviousFrame)
ON_COMMAND(ID_VIEW_GRID, &CMainFrame::OnViewGrid)
ON_COMMAND(ID_VIEW_LIMITS, &CMainFrame::OnViewLimits)
ON_COMMAND(ID_VIEW_LOCK, &CMainFrame::OnViewLock)
ON_COMMAND(ID_VIEW_FAHRENHEIT, &CMainFrame::OnViewFahrenheit)
ON_COMMAND(ID_VIEW_SETTINGS, &CMainFrame::OnViewSettings)
ON_COMMAND(ID_PLANT_PAUSE, &CMainFrame::OnPlantPause)
ON_COMMAND(ID_PLANT_ACKNOWLEDGE, &CMainFrame::OnPlantAcknowledge)
ON_COMMAND(ID_HELP_KEYS, &CMainFrame::OnHelpKeys)
ON_COMMAND(ID_HELP_ABOUT, &CMainFrame::OnHelpAbout)
ON_UPDATE_COMMAND_UI_RANGE(CBaseFrameWnd::ID_FRAME_FIRST, CBaseFrameWnd::ID_FRAME_LAST,
                           &CMainFrame::OnUpdateStyle)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_NEXT_FRAME, ID_VIEW_PREVIOUS_FRAME, &CMainFrame::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI(ID_FILE_CLOSE_FRAME, &CMainFrame::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI(ID_VIEW_GRID, &CMainFrame::OnUpdateGrid)
ON_UPDATE_COMMAND_UI(ID_VIEW_LIMITS, &CMainFrame::OnUpdateLimits)
ON_UPDATE_COMMAND_UI(ID_VIEW_LOCK, &CMainFrame::OnUpdateLock)
ON_UPDATE_COMMAND_UI(ID_VIEW_FAHRENHEIT, &CMainFrame::OnUpdateFahrenheit)
ON_UPDATE_COMMAND_UI(ID_PLANT_PAUSE, &CMainFrame::OnUpdatePause)
ON_UPDATE_COMMAND_UI(ID_PLANT_ACKNOWLEDGE, &CMainFrame::OnUpdateAcknowledge)
ON_UPDATE_COMMAND_UI_RANGE(ID_PANE_NEIGHBOUR, ID_PANE_WATCH, &CMainFrame::OnUpdateNoPane)
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
                                  {ID_PANE_NEIGHBOUR, TEXT_NEIGHBOUR},
                                  {ID_PANE_SWAP, TEXT_SWAP},
                                  {ID_VIEW_LOCK, TEXT_LOCK},
                                  {0, nullptr},
                                  {ID_VIEW_GRID, L"&Grid lines"},
                                  {ID_VIEW_LIMITS, L"&Alarm limits"},
                                  {ID_VIEW_FAHRENHEIT, L"Temperatures in °&F\tF8"},
                                  {0, nullptr},
                                  {ID_VIEW_SETTINGS, L"&Edit settings\tCtrl+E"}}),
                       L"&View");
    AppendMenuBarPopup(m_hBaseFrameMenu, L"F&rames"); // built by the library from the layout definition
    AppendMenuBarPopup(MakePopup({{ID_PLANT_PAUSE, L"&Pause data\tF7"},
                                  {ID_PLANT_ACKNOWLEDGE, L"&Acknowledge alarms\tF12"},
                                  {ID_PANE_WATCH, L"&Watch in the banner\tCtrl+B"}}),
                       L"&Plant");
    AppendMenuBarPopup(
        MakePopup({{ID_HELP_KEYS, L"&Keys and mouse\tF1"}, {ID_HELP_ABOUT, L"&About the workbench"}}),
        L"&Help");
    BuildAccelerators();
}

void CMainFrame::BuildAccelerators()
{
    static constexpr ACCEL KEYS[] = {
        {FVIRTKEY | FCONTROL, 'W', ID_FILE_CLOSE_FRAME},
        {FVIRTKEY | FCONTROL, 'Q', ID_FILE_EXIT},
        {FVIRTKEY | FCONTROL, VK_NEXT, ID_VIEW_NEXT_FRAME},
        {FVIRTKEY | FCONTROL, VK_PRIOR, ID_VIEW_PREVIOUS_FRAME},
        {FVIRTKEY | FCONTROL, 'L', ID_VIEW_LOCK},
        {FVIRTKEY | FCONTROL, 'E', ID_VIEW_SETTINGS},
        {FVIRTKEY | FCONTROL, 'B', ID_PANE_WATCH},
        {FVIRTKEY, VK_F1, ID_HELP_KEYS},
        {FVIRTKEY, VK_F7, ID_PLANT_PAUSE},
        {FVIRTKEY, VK_F8, ID_VIEW_FAHRENHEIT},
        {FVIRTKEY, VK_F9, ID_PANE_NEIGHBOUR},
        {FVIRTKEY, VK_F11, ID_PANE_SWAP},
        {FVIRTKEY, VK_F12, ID_PLANT_ACKNOWLEDGE},
    };
    m_hKeys = ::CreateAcceleratorTable(KEYS, static_cast<int>(std::size(KEYS)));
    SetAccelerators(m_hKeys);
}

CSettingsUnit* CMainFrame::GetForm()
{
    return dynamic_cast<CSettingsUnit*>(FindGlobalBaseUnitWnd(L"Settings"));
}

BOOL CMainFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    auto* pUnit = dynamic_cast<CBaseUnitWnd*>(GetFocus());
    return (pUnit && pUnit->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           CBaseFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CMainFrame::OnOpenStyle(UINT nID)
{
    OnBaseFrameOpen(nID);
    if (CMDIChildWnd* pFrame = MDIGetActive())
        pFrame->RecalcLayout(TRUE);
}

/// Asked here and not only by the helper of the frame that has the form: then no frame has been closed yet
/// when the user decides to stay, and the form may also stand in none.
void CMainFrame::OnClose()
{
    CSettingsUnit* pForm = GetForm();
    if (!pForm || pForm->AskBeforeLeaving())
        CBaseFrameWnd::OnClose();
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
    Toggle(&Settings::bGrid);
}

void CMainFrame::OnViewLimits()
{
    Toggle(&Settings::bLimits);
}

void CMainFrame::OnViewFahrenheit()
{
    Toggle(&Settings::bFahrenheit);
}

void CMainFrame::Toggle(bool Settings::*pFlag)
{
    Settings settings = CWorkbenchApp::Get().GetSettings();
    settings.*pFlag = !(settings.*pFlag);
    CWorkbenchApp::Get().SetSettings(settings);
    // To the units of the frame in front and to the global units; others catch up when they come to the
    // front.
    CBaseUnitWnd::BroadcastCommand(UNIT_CMD_SETTINGS_CHANGED, 0);
}

/// The helper of the frame in front fixes its lines before the layout; the others do when they come up.
void CMainFrame::OnViewLock()
{
    CWorkbenchApp& app = CWorkbenchApp::Get();
    app.LockLayout(!app.IsLayoutLocked());
    if (CMDIChildWnd* pFrame = MDIGetActive())
        pFrame->RecalcLayout(TRUE);
    CBaseUnitWnd::BroadcastCommand(UNIT_CMD_SETTINGS_CHANGED, 0);
}

/// The form in the frame in front, else the frame that is made for it.
void CMainFrame::OnViewSettings()
{
    const CSettingsUnit* pThere = GetForm();
    if (!pThere || !pThere->IsInSight() || pThere->GetParentFrame() != MDIGetActive())
        OnBaseFrameOpen(L"Setup");
    if (CSettingsUnit* pForm = GetForm())
        pForm->SetFocus();
}

void CMainFrame::OnPlantPause()
{
    CWorkbenchApp& app = CWorkbenchApp::Get();
    app.GetFeed().SetPaused(!app.GetFeed().IsPaused());
    app.AddToJournal(Severity::Operator, L"Data",
                     app.GetFeed().IsPaused() ? L"Data paused" : L"Data resumed");
    CBaseUnitWnd::BroadcastCommand(UNIT_CMD_JOURNAL_CHANGED, 0);
}

/// The same as Enter in a log: the helper of the frame in front does it.
void CMainFrame::OnPlantAcknowledge()
{
    if (auto* pFrame = DYNAMIC_DOWNCAST(CBaseFrameChildWnd, GetActiveFrame()))
        pFrame->ProcessHelperMessage(HELPER_MSG_ACKNOWLEDGE, 0, 0);
}

void CMainFrame::OnHelpKeys()
{
    ::AfxMessageBox(L"Drag the lines between panes to make room for one of them. The button in a caption "
                    L"hides what is beside a pane, a double click shows a chart as a table, and a right "
                    L"click opens a menu. The wheel scrolls lists and changes the time span of charts.\n\n"
                    L"Tab:  next pane\n"
                    L"Ctrl+Tab:  next frame\n"
                    L"Ctrl+F4:  close the frame\n"
                    L"F9:  hide what is beside the pane, or show it again\n"
                    L"F11:  chart or table\n"
                    L"Alt or F10:  menus");
}

void CMainFrame::OnHelpAbout()
{
    ::AfxMessageBox(L"Pilot Plant Workbench\n\nA sample application for Splitframe. The plant is made up.");
}

/// A check mark at the style that is in front.
void CMainFrame::OnUpdateStyle(CCmdUI* pCmdUI)
{
    const auto* pDoc = dynamic_cast<const CBaseFrameDoc*>(GetActiveDocument());
    UINT nID = ID_FRAME_FIRST;
    for (const CBaseFrameDoc* pDefinition : m_arrBaseFrameDoc) {
        if (pDoc && pDefinition->m_strName == pDoc->m_strName)
            return pCmdUI->SetCheck(pCmdUI->m_nID == nID + static_cast<UINT>(pDoc->m_nCurStyle));
        nID += static_cast<UINT>(pDefinition->m_arrStyle.GetSize());
    }
    pCmdUI->SetCheck(0);
}

/// What no pane with the keyboard answers for.
void CMainFrame::OnUpdateNoPane(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(FALSE);
    pCmdUI->SetCheck(0);
    if (pCmdUI->m_nID == ID_PANE_NEIGHBOUR)
        pCmdUI->SetText(TEXT_NEIGHBOUR);
    else if (pCmdUI->m_nID == ID_PANE_SWAP)
        pCmdUI->SetText(TEXT_SWAP);
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

void CMainFrame::OnUpdateLock(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().IsLayoutLocked() ? 1 : 0);
}

void CMainFrame::OnUpdateFahrenheit(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().GetSettings().bFahrenheit ? 1 : 0);
}

void CMainFrame::OnUpdateAcknowledge(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(MDIGetActive() && CWorkbenchApp::Get().GetRecord().GetJournal().CountUnacknowledged() > 0);
}

void CMainFrame::OnUpdatePause(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(CWorkbenchApp::Get().GetFeed().IsPaused() ? 1 : 0);
}
