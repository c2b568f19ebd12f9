// What can be done with any pane: hide and show what lies beside it, change it for another view, pick
// commands from its context menu, go to the next pane by key.
#include "Application.h"
#include "Commands.h"
#include "MainFrame.h"
#include "units/PaneUnit.h"

#include <platform/window/Menu.h>
#include <platform/window/MessageLoop.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr int BUTTON_HEIGHT = 18;
constexpr int BUTTON_MARGIN = 8;
constexpr int LEAST_TITLE = 90; // a caption with less room for its title gives the button's words up
// A line that was left without a share gives this much to the part that comes back.
constexpr double SHARE_OF_THE_RETURNED = 0.35;

struct Direction
{
    const wchar_t* pszName;
    wchar_t arrow;
    CSplitLine::DIRECT_VALUE opposite;
};

const Direction& InfoOf(CSplitLine::DIRECT_VALUE direction)
{
    static constexpr std::array<Direction, 4> DIRECTIONS = {{
        {L"RIGHT", L'▸', CSplitLine::DV_LEFT},
        {L"LEFT", L'◂', CSplitLine::DV_RIGHT},
        {L"TOP", L'▴', CSplitLine::DV_BOTTOM},
        {L"BOTTOM", L'▾', CSplitLine::DV_TOP},
    }};
    return DIRECTIONS[static_cast<std::size_t>(direction)];
}

} // namespace

void CPaneUnit::ReadPaneParameters()
{
    CString strFold, strPart;
    m_parameters.GetPair(L"FOLD", strFold, strPart);
    for (const DIRECT_VALUE direction : {DV_RIGHT, DV_LEFT, DV_TOP, DV_BOTTOM}) {
        if (strFold.CompareNoCase(InfoOf(direction).pszName) == 0)
            m_neighbour = Neighbour{direction, strPart};
    }
    Other other;
    if (m_parameters.GetPair(L"SWAP", other.strUnit, other.strKind))
        m_other = other;
}

bool CPaneUnit::IsInSight() const
{
    CRect rc;
    GetClientRect(rc);
    return IsWindowVisible() && !rc.IsRectEmpty();
}

// --- the neighbour

bool CPaneUnit::IsNeighbourHidden() const
{
    const CSplitLine* pPart = m_neighbour ? GetSplitLine(m_neighbour->direction) : nullptr;
    return pPart && !pPart->m_bShow;
}

/// Collapses what lies across the line, or brings it back. The helper hears of it: it knows which lines may
/// be dragged now.
void CPaneUnit::ToggleNeighbour()
{
    if (!m_neighbour || !GetSplitLine(m_neighbour->direction))
        return;
    const DIRECT_VALUE direction = m_neighbour->direction;
    GetHideShowState(direction); // brings the unit's own flag, which HideShow turns over, up to date
    const bool bShown = HideShow(direction) != 0.0;
    const CSplitLine* pPart = GetSplitLine(direction);
    const CSplitLine* pLine = pPart ? pPart->m_pParent.Get() : nullptr;
    // While a part is collapsed its line may have lost its share to the other side; it would come back with
    // no size at all.
    if (bShown && pLine && (pLine->m_dLRate <= 0.0 || pLine->m_dLRate >= 1.0))
        ProcessModifyWindow(direction, SHARE_OF_THE_RETURNED);
    Invalidate(FALSE);
    Notify(NOTIFY_NEIGHBOUR_TOGGLED, direction);
}

CString CPaneUnit::GetButtonText() const
{
    const Direction& info = InfoOf(m_neighbour->direction);
    const bool bHidden = IsNeighbourHidden();
    const CString strArrow(bHidden ? InfoOf(info.opposite).arrow : info.arrow);
    CRect rc;
    GetClientRect(rc);
    CDC dc; // measures only
    const CString strText = (bHidden ? L"Show " : L"Hide ") + m_neighbour->strName + L" " + strArrow;
    const int nRoom = rc.Width() - 2 * theme::PADDING - 2 * BUTTON_MARGIN - LEAST_TITLE;
    return theme::TextWidth(dc, strText, theme::Font::Small) <= nRoom ? strText : strArrow;
}

CRect CPaneUnit::GetButtonRect() const
{
    if (!m_neighbour || !GetSplitLine(m_neighbour->direction))
        return {};
    CRect rc;
    GetClientRect(rc);
    CDC dc;
    const int nWidth = theme::TextWidth(dc, GetButtonText(), theme::Font::Small) + 2 * BUTTON_MARGIN;
    const int nRight = rc.right - theme::PADDING / 2;
    const int nTop = (GetCaptionHeight() - BUTTON_HEIGHT) / 2 + 1;
    const bool bRoom = nRight - nWidth >= theme::PADDING && rc.bottom >= nTop + BUTTON_HEIGHT;
    return bRoom ? CRect(nRight - nWidth, nTop, nRight, nTop + BUTTON_HEIGHT) : CRect();
}

void CPaneUnit::DrawButton(CDC& dc) const
{
    const bool bHidden = IsNeighbourHidden();
    const CRect rc = GetButtonRect();
    theme::DrawBox(dc, rc, bHidden ? theme::ACCENT : theme::PANEL, bHidden ? theme::ACCENT : theme::LINE, 8);
    theme::DrawLine(dc, GetButtonText(), rc, theme::Font::Small, bHidden ? theme::PANEL : theme::ACCENT,
                    DT_CENTER);
}

void CPaneUnit::OnUpdateNeighbour(CCmdUI* pCmdUI)
{
    const bool bCan = m_neighbour && GetSplitLine(m_neighbour->direction);
    pCmdUI->Enable(bCan);
    const CString strVerb = IsNeighbourHidden() ? L"S&how " : L"&Hide ";
    pCmdUI->SetText(bCan ? strVerb + m_neighbour->strName + L"\tF9" : CString(TEXT_NEIGHBOUR));
}

// --- the other view

void CPaneUnit::Swap()
{
    if (!m_other)
        return;
    const CString strUnit = m_other->strUnit;
    if (!ReplaceBaseUnit(strUnit, CSplitLine::m_strName))
        return;
    if (CBaseUnitWnd* pUnit = FindBaseUnitWnd(strUnit))
        pUnit->SetFocus();
}

void CPaneUnit::OnUpdateSwap(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_other.has_value());
    pCmdUI->SetText(m_other ? L"Show as &" + m_other->strKind + L"\tF11" : CString(TEXT_SWAP));
}

// --- the watch

/// The helper has another pane show it.
void CPaneUnit::OnWatch()
{
    Notify(NOTIFY_INSTRUMENT_WATCHED, GetSelectedInstrument());
}

void CPaneUnit::OnUpdateWatch(CCmdUI* pCmdUI)
{
    const int nInstrument = GetSelectedInstrument();
    pCmdUI->Enable(nInstrument >= 0);
    pCmdUI->SetCheck(nInstrument >= 0 &&
                     ProcessHelperMessage(HELPER_MSG_IS_WATCHED, static_cast<WPARAM>(nInstrument), 0) == 1);
}

// --- input

/// Tab goes through the panes that can be seen, and back with Shift.
void CPaneUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_TAB)
        ProcessHelperMessage(HELPER_MSG_NEXT_PANE, ::GetKeyState(VK_SHIFT) < 0 ? 1 : 0, 0);
    else
        CBaseUnitWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CPaneUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    SetFocus(); // windows never move the focus to what is clicked by themselves
    if (GetButtonRect().PtInRect(pt))
        ToggleNeighbour();
    else
        CBaseUnitWnd::OnLButtonDown(nFlags, pt);
}

void CPaneUnit::OnLButtonDblClk(UINT nFlags, CPoint pt)
{
    if (m_other && !GetButtonRect().PtInRect(pt))
        Swap();
    else
        OnLButtonDown(nFlags, pt); // two quick presses of a button are two presses
}

void CPaneUnit::OnRButtonDown(UINT nFlags, CPoint pt)
{
    SetFocus();
    CBaseUnitWnd::OnRButtonDown(nFlags, pt);
}

void CPaneUnit::OnContextMenu(CWnd*, CPoint pt)
{
    if (pt.x == -1 && pt.y == -1) { // asked for by key
        pt = CPoint(theme::PADDING, GetCaptionHeight());
        ClientToScreen(&pt);
    }
    CMenu menu;
    menu.CreatePopupMenu();
    SendMessage(UNIT_MSG_UPDATE_MENU, reinterpret_cast<WPARAM>(&menu), reinterpret_cast<LPARAM>(L""));
    SetFocus(); // the main frame offers commands to the pane with the focus first
    menu.TrackPopupMenu(TPM_LEFTALIGN, pt.x, pt.y, App().GetMainFrame());
}

LRESULT CPaneUnit::UpdateMenu(CMenu* pMenu, CString)
{
    if (!pMenu)
        return 0;
    FillMenu(*pMenu);
    if (pMenu->GetMenuItemCount() > 0)
        pMenu->AppendMenu(MF_SEPARATOR);
    if (GetSelectedInstrument() >= 0)
        pMenu->AppendMenu(MF_STRING, ID_PANE_WATCH, L"&Watch in the banner\tCtrl+B");
    if (m_other)
        pMenu->AppendMenu(MF_STRING, ID_PANE_SWAP, TEXT_SWAP);
    if (m_neighbour)
        pMenu->AppendMenu(MF_STRING, ID_PANE_NEIGHBOUR, TEXT_NEIGHBOUR);
    pMenu->AppendMenu(MF_STRING, ID_VIEW_LOCK, TEXT_LOCK);
    return 1;
}
