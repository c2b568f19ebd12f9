// What happens between the units of a frame.
#include "WorkbenchHelper.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"
#include "MainFrame.h"
#include "TreeWalk.h"
#include "units/SettingsUnit.h"

#include <definition/FrameStyle.h>
#include <document/BaseFrameDoc.h>
#include <document/BaseFrameView.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CWorkbenchHelper, CBaseFrameHelper)

GUID CWorkbenchHelper::GetGUID()
{
    return GUID_WORKBENCH_HELPER;
}

/// The units of a style have just been made or taken over: show them what is selected.
void CWorkbenchHelper::OnStyleInitial()
{
    PrepareUnits();
    if (m_nInstrument >= 0)
        TellAllUnits(UNIT_CMD_SHOW_INSTRUMENT, m_nInstrument);
    TellUnit(L"Banner", UNIT_CMD_WATCH, m_nWatched);
}

void CWorkbenchHelper::OnBaseUnitNotify(UINT nCode, LPARAM lParam)
{
    switch (nCode) {
    case NOTIFY_INSTRUMENT_SELECTED:
        return SelectInstrument(static_cast<int>(lParam));
    case NOTIFY_INSTRUMENT_WATCHED:
        return WatchInstrument(static_cast<int>(lParam));
    case NOTIFY_NEIGHBOUR_TOGGLED:
        NoteFolded();
        return UpdateMovable();
    case NOTIFY_SETTINGS_APPLIED:
        CWorkbenchApp::Get().AddToJournal(Severity::Operator, L"Settings", L"Settings applied");
        return TellUnit(L"Log", UNIT_CMD_JOURNAL_CHANGED, 0);
    default:
        return;
    }
}

void CWorkbenchHelper::SelectInstrument(int nInstrument)
{
    m_nInstrument = nInstrument;
    const Instrument& instrument = GetInstrument(nInstrument);
    CWorkbenchApp::Get().AddToJournal(Severity::Operator, instrument.pszTag,
                                      CString(instrument.pszName) + L" selected");
    TellAllUnits(UNIT_CMD_SHOW_INSTRUMENT, nInstrument);
    TellUnit(L"Log", UNIT_CMD_JOURNAL_CHANGED, 0);
}

/// The instrument that is watched already is let go.
void CWorkbenchHelper::WatchInstrument(int nInstrument)
{
    const bool bOn = nInstrument != m_nWatched;
    m_nWatched = bOn ? nInstrument : -1;
    const Instrument& instrument = GetInstrument(nInstrument);
    CWorkbenchApp::Get().AddToJournal(Severity::Operator, instrument.pszTag,
                                      CString(instrument.pszName) +
                                          (bOn ? L" watched in the banner" : L" no longer watched"));
    TellUnit(L"Banner", UNIT_CMD_WATCH, m_nWatched);
    TellUnit(L"Log", UNIT_CMD_JOURNAL_CHANGED, 0);
}

LRESULT CWorkbenchHelper::ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    switch (nMsg) {
    case WM_CLOSE:
        return MayClose() ? 0 : 1;
    case HELPER_MSG_ACKNOWLEDGE:
        return AcknowledgeAlarms();
    case HELPER_MSG_NEXT_PANE:
        MoveFocus(wParam != 0);
        return 1;
    case HELPER_MSG_IS_WATCHED:
        return m_nWatched >= 0 && static_cast<int>(wParam) == m_nWatched ? 1 : 0;
    default:
        return CBaseFrameHelper::ProcessMessage(nMsg, wParam, lParam);
    }
}

int CWorkbenchHelper::AcknowledgeAlarms()
{
    CWorkbenchApp& app = CWorkbenchApp::Get();
    const int nCount = app.GetRecord().GetJournal().AcknowledgeAll();
    if (nCount > 0) {
        CString strText;
        strText.Format(nCount == 1 ? L"%d alarm acknowledged" : L"%d alarms acknowledged", nCount);
        app.AddToJournal(Severity::Operator, L"Operator", strText);
    }
    TellUnit(L"Log", UNIT_CMD_JOURNAL_CHANGED, 0);
    return nCount;
}

/// Not while the form stands in this frame with changes that the user wants to keep.
bool CWorkbenchHelper::MayClose()
{
    CSettingsUnit* pForm = CWorkbenchApp::Get().GetMainFrame()->GetForm();
    const bool bHere = pForm && m_pDoc && m_pDoc->m_pView && pForm->GetParent() == m_pDoc->m_pView;
    return !bHere || pForm->AskBeforeLeaving();
}

// --- the focus

std::vector<CPaneUnit*> CWorkbenchHelper::GetPanesInSight()
{
    std::vector<CPaneUnit*> arrPane;
    for (int n = 0; m_pDoc && n < m_pDoc->GetBaseUnitWndCount(); ++n)
        arrPane.push_back(dynamic_cast<CPaneUnit*>(m_pDoc->GetBaseUnitWnd(n)));
    CSettingsUnit* pForm = CWorkbenchApp::Get().GetMainFrame()->GetForm();
    if (pForm && m_pDoc && pForm->GetParent() == m_pDoc->m_pView)
        arrPane.push_back(pForm);
    std::erase_if(arrPane, [](const CPaneUnit* pPane) { return !pPane || !pPane->IsInSight(); });
    return arrPane;
}

/// To the next pane that can be seen, the form included, which is not one of the frame's own units.
void CWorkbenchHelper::MoveFocus(bool bBack)
{
    const std::vector<CPaneUnit*> arrPane = GetPanesInSight();
    if (arrPane.empty())
        return;
    const auto at = std::find(arrPane.begin(), arrPane.end(), CWnd::GetFocus());
    const std::size_t nAt = static_cast<std::size_t>(at - arrPane.begin());
    const std::size_t nStep = bBack ? arrPane.size() - 1 : 1;
    CPaneUnit* pNext = at == arrPane.end() ? arrPane.front() : arrPane[(nAt + nStep) % arrPane.size()];
    for (int n = 0; n < m_pDoc->GetBaseUnitWndCount(); ++n) {
        if (m_pDoc->GetBaseUnitWnd(n) == pNext)
            return m_pDoc->SetCurrentBaseUnitWnd(n);
    }
    pNext->SetFocus();
}

// --- the split lines

/// A new style starts with all of its parts shown, although units keep their own mark when they are carried
/// over. What it lists without giving it a place waits unseen until a double click puts it into one.
void CWorkbenchHelper::PrepareUnits()
{
    m_arrFolded.clear();
    if (!m_pDoc || m_pDoc->m_nCurStyle < 0 || m_pDoc->m_nCurStyle >= m_pDoc->m_arrStyle.GetSize())
        return;
    const auto& arrSplit = m_pDoc->m_arrStyle[m_pDoc->m_nCurStyle]->m_arrSplitInfo;
    for (int n = 0; n < m_pDoc->GetBaseUnitWndCount(); ++n) {
        CBaseUnitWnd* pUnit = m_pDoc->GetBaseUnitWnd(n);
        pUnit->m_bShow = true;
        const bool bPlaced = std::any_of(arrSplit.begin(), arrSplit.end(), [&](const _SPLIT_INFO* pInfo) {
            return pUnit->CSplitLine::m_strName == pInfo->szLeft ||
                   pUnit->CSplitLine::m_strName == pInfo->szRight;
        });
        if (!bPlaced && !arrSplit.IsEmpty())
            pUnit->ShowWindow(SW_HIDE);
    }
}

/// Before each layout: the form comes with the mark of the frame that had it, lines of a new tree may all be
/// dragged again that are movable by their record.
void CWorkbenchHelper::OnCalcWindowRect(LPRECT lpRect)
{
    CBaseFrameHelper::OnCalcWindowRect(lpRect);
    if (!m_pDoc)
        return;
    ForEachNode(m_pDoc->m_pRoot, [this](CSplitLine& node) {
        node.m_bShow = std::find(m_arrFolded.begin(), m_arrFolded.end(), node.m_strName) == m_arrFolded.end();
    });
    UpdateMovable();
}

void CWorkbenchHelper::NoteFolded()
{
    m_arrFolded.clear();
    ForEachNode(m_pDoc ? m_pDoc->m_pRoot : nullptr, [this](const CSplitLine& node) {
        if (!node.m_bShow)
            m_arrFolded.push_back(node.m_strName);
    });
}

/// A line beside a hidden part is fixed. Beside a hidden first side it would even have a grab band all over
/// the second one: the band runs from one side to the other, and a hidden side has no edge to start from.
/// Lines inside a hidden part are fixed too: they would lose their shares, which follow the panes' sizes
/// whenever another line is dragged.
void CWorkbenchHelper::UpdateMovable()
{
    if (!m_pDoc || !m_pDoc->m_pRoot)
        return;
    const auto isHidden = [](const CSplitLine* pNode) {
        while (pNode && pNode->m_bShow)
            pNode = pNode->m_pParent.Get();
        return pNode != nullptr;
    };
    for (const _SPLIT_INFO* pInfo : m_pDoc->m_arrStyle[m_pDoc->m_nCurStyle]->m_arrSplitInfo) {
        bool bMovable = pInfo->bMobile && !CWorkbenchApp::Get().IsLayoutLocked();
        ForEachNode(m_pDoc->m_pRoot, [&](const CSplitLine& node) {
            if (node.m_strName == pInfo->szName && !node.IsLeaf())
                bMovable &= !isHidden(node.m_pFirst.Get()) && !isHidden(node.m_pSecond.Get());
        });
        m_pDoc->m_pRoot->EnableMove(pInfo->szName, true, bMovable);
    }
}

/// By name, so that a unit needs no pointer to another; a style without that unit has nothing to tell.
void CWorkbenchHelper::TellUnit(const wchar_t* pszName, UINT nCmd, LPARAM lParam)
{
    if (CBaseUnitWnd* pUnit = GetBaseUnitWnd(pszName))
        pUnit->OnProcessCommand(nCmd, lParam);
}

/// A unit may do anything with a command, also close the frame: the count is asked for each time.
void CWorkbenchHelper::TellAllUnits(UINT nCmd, LPARAM lParam)
{
    for (int n = 0; m_pDoc && n < m_pDoc->GetBaseUnitWndCount(); ++n)
        m_pDoc->GetBaseUnitWnd(n)->OnProcessCommand(nCmd, lParam);
}
