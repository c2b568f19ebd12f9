// The window, its menus, and what the commands about frames, styles and panes do. Those about the layout file
// are in ViewerWindowFile.cpp.
#include "ViewerWindow.h"

#include "Commands.h"
#include "PaneLines.h"
#include "PlaceholderUnit.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "platform/docking/MenuBar.h"
#include "platform/window/MessageLoop.h"

#include <cstdio>
#include <utility>

using namespace viewer;

IMPLEMENT_DYNAMIC(CViewerWindow, CViewerFrame)

BEGIN_MESSAGE_MAP(CViewerWindow, CViewerFrame)
ON_WM_TIMER()
ON_WM_CLOSE()
ON_COMMAND(ID_RELOAD, &CViewerWindow::OnReload)
ON_COMMAND(ID_SAVE, &CViewerWindow::OnSave)
ON_COMMAND(ID_CLOSE_FRAME, &CViewerWindow::OnCloseFrame)
ON_COMMAND(ID_EXIT, &CViewerWindow::OnExit)
ON_COMMAND_RANGE(ID_HIDE_RIGHT, ID_HIDE_BELOW, &CViewerWindow::OnHide)
ON_COMMAND(ID_SHOW_ALL, &CViewerWindow::OnShowAll)
ON_COMMAND(ID_LOCK_LINES, &CViewerWindow::OnLockLines)
ON_COMMAND(ID_PRINT_STATE, &CViewerWindow::OnPrintState)
ON_COMMAND(ID_SHOW_KEYS, &CViewerWindow::OnShowKeys)
ON_COMMAND_RANGE(ID_STYLE_FIRST, ID_STYLE_LAST, &CViewerWindow::OnStyle)
ON_COMMAND_RANGE(ID_FRAME_FIRST, ID_FRAME_LAST, &CViewerWindow::OnFrameCommand)
ON_UPDATE_COMMAND_UI(ID_SAVE, &CViewerWindow::OnUpdateSave)
ON_UPDATE_COMMAND_UI(ID_CLOSE_FRAME, &CViewerWindow::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI_RANGE(ID_HIDE_RIGHT, ID_SHOW_ALL, &CViewerWindow::OnUpdateHasFrame)
ON_UPDATE_COMMAND_UI(ID_LOCK_LINES, &CViewerWindow::OnUpdateLockLines)
ON_UPDATE_COMMAND_UI_RANGE(ID_STYLE_FIRST, ID_STYLE_LAST, &CViewerWindow::OnUpdateStyle)
END_MESSAGE_MAP()

CViewerWindow::CViewerWindow(LayoutSource& source, std::string strSaveTo, Messages& messages)
    : m_source(source), m_strSaveTo(std::move(strSaveTo)), m_messages(messages), m_watch(source.GetFile())
{
    m_messages.SetErrorListener(
        [this](const std::string& strLine) { m_status.ShowText(CString::FromUtf8(strLine), true); });
}

CViewerWindow::~CViewerWindow()
{
    EndFromDestructor();
    m_messages.SetErrorListener({});
    ::DestroyAcceleratorTable(m_hKeys);
}

BOOL CViewerWindow::OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext)
{
    return m_status.CreateLine(this) && CViewerFrame::OnCreateClient(lpcs, pContext);
}

void CViewerWindow::LayoutBars(CRect& rcRoom)
{
    CViewerFrame::LayoutBars(rcRoom);
    const int nTop =
        rcRoom.bottom - rcRoom.top > CStatusLine::kHeight ? rcRoom.bottom - CStatusLine::kHeight : rcRoom.top;
    ::SetWindowPos(m_status.GetSafeHwnd(), nullptr, rcRoom.left, nTop, rcRoom.Width(), rcRoom.bottom - nTop,
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    rcRoom.bottom = nTop;
}

// --- start

void CViewerWindow::Start(CMultiDocTemplate* pTemplate)
{
    m_pTemplate = pTemplate;
    m_hKeys = MakeCommandKeys();
    SetAccelerators(m_hKeys);
    LoadSource();
    SetUnsaved(false);
}

void CViewerWindow::Open(const std::vector<StyleChoice>& choices)
{
    for (const StyleChoice& choice : choices)
        ShowStyle(choice.nFrame, choice.nStyle);
    if (choices.size() > 1)
        ShowStyle(choices.front().nFrame, choices.front().nStyle);
    LockLines();
    TellLoaded(L"Loaded");
    WatchFile();
}

void CViewerWindow::FitFront(CSize size)
{
    const CBaseFrameDoc* pFront = FrontDocument();
    if (pFront && pFront->m_pView)
        FitView(*pFront->m_pView, size);
}

void CViewerWindow::BuildMenuBar()
{
    SetMenuBar(::CreateMenu());
    AppendMenuBarPopup(MakeCommandMenu("File"), L"&File");
    AppendMenuBarPopup(m_hBaseFrameMenu, L"F&rames"); // built by the library from the layout
    m_hStyleMenu = ::CreatePopupMenu();
    AppendMenuBarPopup(m_hStyleMenu, L"&Style");
    AppendMenuBarPopup(MakeCommandMenu("Panes"), L"&Panes");
    AppendMenuBarPopup(MakeCommandMenu("Help"), L"&Help");
    FillStyleMenu();
}

bool CViewerWindow::IsMenuOpen() const
{
    const auto* pBar = DYNAMIC_DOWNCAST(splitframe::CMenuBar, GetMenuBarWnd());
    return pBar && pBar->GetMarkedItem() >= 0;
}

// --- the frame in front

int CViewerWindow::PositionOf(const CBaseFrameDoc& document) const
{
    for (int nFrame = 0; nFrame < m_arrBaseFrameDoc.GetSize(); ++nFrame)
        if (m_arrBaseFrameDoc[nFrame]->m_strName == document.m_strName)
            return nFrame;
    return -1;
}

void CViewerWindow::OnChildFramesChanged()
{
    CViewerFrame::OnChildFramesChanged();
    FillStyleMenu();
}

void CViewerWindow::FillStyleMenu()
{
    while (::GetMenuItemCount(m_hStyleMenu) > 0)
        ::DeleteMenu(m_hStyleMenu, 0, MF_BYPOSITION);
    const CBaseFrameDoc* pFront = FrontDocument();
    if (!pFront)
        return;
    int nStyle = 0;
    for (const CBaseFrameStyle* pStyle : pFront->m_arrStyle) {
        ::AppendMenuW(m_hStyleMenu, MF_STRING, ID_STYLE_FIRST + static_cast<UINT>(nStyle),
                      StyleLabel(pStyle->m_strName, nStyle));
        ++nStyle;
    }
}

void CViewerWindow::LockLines()
{
    for (CMDIChildWnd* pChild : GetChildFrames()) {
        auto* pFrame = DYNAMIC_DOWNCAST(CBaseFrameChildWnd, pChild);
        if (CBaseFrameDoc* pDocument = pFrame ? pFrame->GetFrameDoc() : nullptr)
            viewer::LockLines(*pDocument, m_bLinesLocked);
    }
}

// --- commands

void CViewerWindow::OnStyle(UINT nID)
{
    const CBaseFrameDoc* pFront = FrontDocument();
    const int nStyle = static_cast<int>(nID - ID_STYLE_FIRST);
    const int nFrame = pFront && nStyle < pFront->m_arrStyle.GetSize() ? PositionOf(*pFront) : -1;
    if (nFrame < 0)
        return;
    ShowStyle(nFrame, nStyle);
    LockLines();
}

void CViewerWindow::OnFrameCommand(UINT nID)
{
    OnBaseFrameOpen(nID);
    LockLines();
}

// The pane that the keys go to.
CPlaceholderUnit* CViewerWindow::FocusedPane() const
{
    if (auto* pFocus = DYNAMIC_DOWNCAST(CPlaceholderUnit, GetFocus()))
        return pFocus;
    CBaseFrameDoc* pFront = FrontDocument();
    const int nCurrent = pFront ? pFront->GetCurrentBaseUnitWnd() : -1;
    const bool bInside = nCurrent >= 0 && nCurrent < pFront->GetBaseUnitWndCount();
    return bInside ? DYNAMIC_DOWNCAST(CPlaceholderUnit, pFront->GetBaseUnitWnd(nCurrent)) : nullptr;
}

void CViewerWindow::OnHide(UINT nID)
{
    CPlaceholderUnit* pPane = FocusedPane();
    if (!pPane)
        return;
    const auto direction = static_cast<CSplitLine::DIRECT_VALUE>(nID - ID_HIDE_RIGHT);
    if (!pPane->ToggleSide(direction))
        m_status.ShowText(L"There is nothing on that side of " + pPane->m_strName, false);
    LockLines();
}

void CViewerWindow::OnShowAll()
{
    const CBaseFrameDoc* pFront = FrontDocument();
    if (pFront && ShowAll(*pFront))
        GetActiveFrame()->RecalcLayout();
    LockLines();
}

void CViewerWindow::OnCloseFrame()
{
    if (CMDIChildWnd* pFrame = MDIGetActive())
        pFrame->SendMessage(WM_CLOSE);
}

void CViewerWindow::OnExit()
{
    PostMessage(WM_CLOSE);
}

void CViewerWindow::OnLockLines()
{
    m_bLinesLocked = !m_bLinesLocked;
    LockLines();
    m_status.ShowText(m_bLinesLocked ? L"Lines are locked" : L"Lines can be dragged", false);
}

void CViewerWindow::OnPrintState()
{
    std::fputs(DumpState().ToUtf8().c_str(), stdout);
    const bool bPrinted = std::fflush(stdout) == 0;
    m_status.ShowText(bPrinted ? L"The state was printed on standard output"
                               : L"Standard output can't be written",
                      !bPrinted);
}

void CViewerWindow::OnShowKeys()
{
    std::string strText;
    for (const KeyHelp& key : ListKeys())
        strText += (strText.empty() ? "" : "\n") + key.strKey + ":  " + key.strEffect;
    ::AfxMessageBox(CString::FromUtf8(strText));
}

void CViewerWindow::OnUpdateHasFrame(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(MDIGetActive() != nullptr);
}

void CViewerWindow::OnUpdateLockLines(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_bLinesLocked ? 1 : 0);
}

void CViewerWindow::OnUpdateStyle(CCmdUI* pCmdUI)
{
    const CBaseFrameDoc* pFront = FrontDocument();
    pCmdUI->SetCheck(pFront && static_cast<UINT>(pFront->m_nCurStyle) == pCmdUI->m_nID - ID_STYLE_FIRST);
}
