// What happens between the units of a frame.
#include "WorkbenchHelper.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <document/BaseFrameDoc.h>
#include <unit/BaseUnitWnd.h>

IMPLEMENT_DYNCREATE(CWorkbenchHelper, CBaseFrameHelper)

GUID CWorkbenchHelper::GetGUID()
{
    return GUID_WORKBENCH_HELPER;
}

/// The units of a style have just been made: show them what is selected.
void CWorkbenchHelper::OnStyleInitial()
{
    if (m_nInstrument >= 0)
        TellAllUnits(UNIT_CMD_SHOW_INSTRUMENT, m_nInstrument);
}

void CWorkbenchHelper::OnBaseUnitNotify(UINT nCode, LPARAM lParam)
{
    switch (nCode) {
    case NOTIFY_INSTRUMENT_SELECTED:
        SelectInstrument(static_cast<int>(lParam));
        break;
    case NOTIFY_SETTINGS_APPLIED:
        CWorkbenchApp::Get().AddToJournal(Severity::Operator, L"Settings", L"Settings applied");
        TellUnit(L"Log", UNIT_CMD_JOURNAL_CHANGED, 0);
        break;
    default:
        break;
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

LRESULT CWorkbenchHelper::ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == HELPER_MSG_ACKNOWLEDGE)
        return AcknowledgeAlarms();
    return CBaseFrameHelper::ProcessMessage(nMsg, wParam, lParam);
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
