// The frame around every unit's content, and its connection to the plant.
#include "units/PaneUnit.h"

#include "Application.h"
#include "Commands.h"

#include <definition/UnitInfo.h>
#include <platform/window/PaintDC.h>

#include <algorithm>

namespace {

constexpr int PLACED_BY_RATES = 1; // a border style of the layout definition

} // namespace

IMPLEMENT_DYNAMIC(CPaneUnit, CBaseUnitWnd)

BEGIN_MESSAGE_MAP(CPaneUnit, CBaseUnitWnd)
ON_WM_DESTROY()
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_CONTEXTMENU()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_ERASEBKGND()
ON_COMMAND(ID_PANE_NEIGHBOUR, &CPaneUnit::ToggleNeighbour)
ON_COMMAND(ID_PANE_SWAP, &CPaneUnit::Swap)
ON_COMMAND(ID_PANE_WATCH, &CPaneUnit::OnWatch)
ON_UPDATE_COMMAND_UI(ID_PANE_NEIGHBOUR, &CPaneUnit::OnUpdateNeighbour)
ON_UPDATE_COMMAND_UI(ID_PANE_SWAP, &CPaneUnit::OnUpdateSwap)
ON_UPDATE_COMMAND_UI(ID_PANE_WATCH, &CPaneUnit::OnUpdateWatch)
END_MESSAGE_MAP()

BOOL CPaneUnit::Create(CWnd* pParent, CBaseUnitInfo* pInfo)
{
    if (!CBaseUnitWnd::Create(pParent, pInfo))
        return FALSE;
    // Frames switch custom drawing on for the units they own. A global unit is only lent to a frame, so it
    // switches it on itself.
    m_bCustomDraw = true;
    if (IsLive())
        App().GetFeed().Subscribe(m_hWnd);
    return TRUE;
}

BOOL CPaneUnit::Init(const wchar_t* pszParam)
{
    // The base keeps the parameters in upper case, for the library; titles need them as they were written.
    m_parameters = CParameters(pszParam);
    const BOOL bResult = CBaseUnitWnd::Init(pszParam);
    ReadPaneParameters();
    OnParameters();
    return bResult;
}

CPen* CPaneUnit::GetBorderPen()
{
    if (!m_penLine.GetSafeHandle())
        m_penLine.CreatePen(PS_SOLID, 1, theme::LINE);
    return &m_penLine;
}

LRESULT CPaneUnit::OnEngineData(WPARAM, LPARAM)
{
    App().GetRecord().Update();
    OnNewData();
    return 1;
}

void CPaneUnit::OnNewData()
{
    const CRect rc = GetContentRect();
    InvalidateRect(rc, FALSE);
}

LRESULT CPaneUnit::ProcessCommand(UINT nCmd, LPARAM lParam)
{
    switch (nCmd) {
    case UNIT_CMD_SHOW_INSTRUMENT:
        OnShowInstrument(static_cast<int>(lParam));
        return 1;
    case UNIT_CMD_SETTINGS_CHANGED:
        OnSettingsChanged();
        return 1;
    case UNIT_CMD_JOURNAL_CHANGED:
        OnJournalChanged();
        return 1;
    default:
        return CBaseUnitWnd::ProcessCommand(nCmd, lParam);
    }
}

void CPaneUnit::OnShowInstrument(int) {}

/// What was broadcast while another frame was in front has not been heard here.
void CPaneUnit::OnMDIActivate(BOOL bActivate, CWnd*, CWnd*)
{
    if (!bActivate)
        return;
    OnSettingsChanged();
    OnJournalChanged();
}

CString CPaneUnit::GetCaption() const
{
    const CString strTitle = m_parameters.GetText(L"TITLE");
    return strTitle.IsEmpty() && m_pBaseUnitInfo ? m_pBaseUnitInfo->m_strName : strTitle;
}

CRect CPaneUnit::GetContentRect() const
{
    CRect rc;
    GetClientRect(rc);
    rc.top += GetCaptionHeight();
    if (m_bBorder)
        rc.DeflateRect(1, GetCaptionHeight() == 0 ? 1 : 0, 1, IsPlacedByRates() ? 1 : 0);
    return rc.IsRectEmpty() ? CRect() : rc;
}

bool CPaneUnit::IsPlacedByRates() const
{
    return m_pBaseUnitInfo && m_pBaseUnitInfo->m_nBorderStyle == PLACED_BY_RATES;
}

CWorkbenchApp& CPaneUnit::App()
{
    return CWorkbenchApp::Get();
}

void CPaneUnit::CustomDraw(CPaintDC* pDC)
{
    CRect rcClient;
    GetClientRect(rcClient);
    pDC->FillSolidRect(rcClient, GetBackground());
    if (GetCaptionHeight() > 0)
        DrawCaption(*pDC, CRect(0, 0, rcClient.right, std::min<int>(GetCaptionHeight(), rcClient.bottom)));

    // Below a pane the next one draws the line between them, but not below one that stands by itself.
    if (IsPlacedByRates())
        pDC->FillSolidRect(0, rcClient.bottom - 1, rcClient.Width(), 1, theme::LINE);
    const CRect rcContent = GetContentRect();
    if (rcContent.IsRectEmpty())
        return;
    const int nSaved = pDC->SaveDC();
    pDC->IntersectClipRect(rcContent);
    Draw(*pDC, rcContent);
    pDC->RestoreDC(nSaved);
}

void CPaneUnit::DrawCaption(CDC& dc, const CRect& rc)
{
    const bool bFocus = CWnd::GetFocus() == this;
    dc.FillSolidRect(rc, theme::CAPTION);
    dc.FillSolidRect(rc.left, rc.bottom - 1, rc.Width(), 1, theme::LINE);
    if (bFocus)
        dc.FillSolidRect(rc.left, rc.top, rc.Width(), 3, theme::ACCENT);

    CRect rcText(rc);
    rcText.DeflateRect(theme::PADDING, bFocus ? 2 : 1, theme::PADDING, 0);
    const CRect rcButton = GetButtonRect();
    if (!rcButton.IsRectEmpty()) {
        DrawButton(dc);
        rcText.right = rcButton.left - theme::PADDING;
    }
    const CString strTitle = GetCaption();
    theme::DrawLine(dc, strTitle, rcText, theme::Font::Bold, bFocus ? theme::ACCENT : theme::TEXT);
    rcText.left += theme::TextWidth(dc, strTitle, theme::Font::Bold) + theme::PADDING;
    DrawNote(dc, rcText);
}

/// The remark and the hint give way to the title, and the remark to the hint.
void CPaneUnit::DrawNote(CDC& dc, const CRect& rc) const
{
    const CString strNote = GetCaptionNote();
    const CString strHint = m_other ? L"double click: " + m_other->strKind : CString();
    const CString strBoth =
        strNote.IsEmpty() || strHint.IsEmpty() ? strNote + strHint : strNote + L"  ·  " + strHint;
    for (const CString& str : {strBoth, strHint, strNote}) {
        if (!str.IsEmpty() && theme::TextWidth(dc, str, theme::Font::Small) <= rc.Width())
            return theme::DrawLine(dc, str, rc, theme::Font::Small, theme::MUTED, DT_RIGHT);
    }
}

void CPaneUnit::OnDestroy()
{
    App().GetFeed().Unsubscribe(m_hWnd);
    CBaseUnitWnd::OnDestroy();
}

void CPaneUnit::OnSetFocus(CWnd* pOldWnd)
{
    CBaseUnitWnd::OnSetFocus(pOldWnd);
    Invalidate(FALSE);
}

void CPaneUnit::OnKillFocus(CWnd* pNewWnd)
{
    CBaseUnitWnd::OnKillFocus(pNewWnd);
    Invalidate(FALSE);
}

BOOL CPaneUnit::OnEraseBkgnd(CDC*)
{
    return TRUE; // all of the pane is painted anyway
}
