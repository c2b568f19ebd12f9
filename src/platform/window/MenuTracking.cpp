// Opening, closing and choosing. WM_INITMENUPOPUP is the one message that is sent while a menu opens; after
// it everything is looked at again.
#include "platform/window/MenuTracking.h"

#include "platform/window/Input.h"
#include "platform/window/MenuText.h"
#include "platform/window/WindowTree.h"

#include <utility>

namespace splitframe {

MenuTracking& MenuTracking::The()
{
    static MenuTracking tracking; // one user, one menu
    return tracking;
}

// --- begin and end

bool MenuTracking::Start(HWND hOwner, HWND hBar)
{
    WindowRecord* pOwner = FindWindowRecord(hOwner);
    if (m_bActive || !pOwner || !IsVisibleOnScreen(*pOwner) ||
        (TopLevelOf(*pOwner).dwStyle & WS_DISABLED) != 0)
        return false;
    ReleaseCapture(); // a drag or a hover that holds the mouse ends here
    if (m_bActive || !IsWindow(hOwner) || (hBar && !IsWindow(hBar)))
        return false;
    m_bActive = true;
    ++m_nSession;
    m_nChosen = 0;
    m_nFlags = 0;
    m_hOwner = hOwner;
    m_hBar = hBar;
    m_nTitle = -1;
    m_nReleaseToSwallow = 0;
    m_ptLast = PointerPosition();
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
    return true;
}

void MenuTracking::EnterBar(HWND hBar, int nTitle, bool bOpen)
{
    const CCallScope scope;
    if (!CanMarkTitle(hBar, nTitle) || !Start(GetParent(hBar), hBar))
        return;
    Mark(nTitle);
    if (bOpen)
        OpenTitle(nTitle, false);
}

bool MenuTracking::EnterBarByKey(HWND hBar, wchar_t ch)
{
    const CCallScope scope;
    const LetterMatch match = FindByLetter(TitleLabels(hBar), -1, ch);
    const int nTitle = ch == 0 ? NextTitle(hBar, -1, 1) : match.nItem;
    if (nTitle < 0 || !Start(GetParent(hBar), hBar))
        return false;
    Mark(nTitle);
    if (match.bOnly)
        ActivateTitle(nTitle);
    return true;
}

unsigned MenuTracking::OpenAt(HWND hOwner, HMENU hMenu, CPoint ptScreen, UINT nFlags)
{
    if (!Start(hOwner, nullptr))
        return 0;
    m_nFlags = nFlags;
    const unsigned nSession = m_nSession;
    if (!OpenLevel(hMenu, 0, CRect(ptScreen, CSize(0, 0)), PopupSide::AtPoint, false) && IsRunning(nSession))
        End();
    return IsRunning(nSession) ? nSession : 0;
}

void MenuTracking::End()
{
    if (!m_bActive)
        return;
    const CCallScope scope;
    m_bActive = false;
    CloseFrom(0);
    if (MenuTitles* pTitles = TitlesOf(m_hBar))
        pTitles->MarkTitle(-1);
}

void MenuTracking::Prune()
{
    if (!m_bActive)
        return;
    const WindowRecord* pOwner = FindWindowRecord(m_hOwner);
    if (!pOwner || IsInDyingTree(*pOwner) || (m_hBar && !CanMarkTitle(m_hBar, m_nTitle)))
        return End();
    for (std::size_t n = 0; n < m_levels.size(); ++n) {
        if (Popup(n).GetSafeHwnd() && IsMenu(Popup(n).GetShownMenu()))
            continue;
        CloseFrom(n);
        if (n == 0 && !m_hBar)
            End();
    }
}

// --- levels

bool MenuTracking::OpenLevel(HMENU hMenu, int nPosition, const CRect& rcAnchor, PopupSide side,
                             bool bSelectFirst)
{
    const unsigned nSession = m_nSession;
    const std::size_t nDepth = m_levels.size();
    if (!IsMenu(hMenu))
        return false;
    if ((m_nFlags & TPM_NONOTIFY) == 0)
        SendMessage(m_hOwner, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(hMenu), nPosition);
    Prune();
    if (!IsRunning(nSession) || m_levels.size() != nDepth || !IsMenu(hMenu))
        return false;
    auto pPopup = std::make_unique<CPopupMenu>();
    if (!pPopup->Open(m_hOwner, hMenu, rcAnchor, side, m_nFlags))
        return false;
    if (bSelectFirst)
        pPopup->Select(pPopup->Next(-1, 1));
    m_levels.push_back({std::move(pPopup), -1});
    return true;
}

void MenuTracking::OpenSubmenu(std::size_t nLevel, int nLine, bool bSelectFirst)
{
    CPopupMenu& popup = Popup(nLevel);
    popup.Select(nLine);
    if (m_levels[nLevel].nOpen != nLine || m_levels.size() == nLevel + 1) {
        CloseFrom(nLevel + 1);
        const HMENU hSubMenu = GetSubMenu(popup.GetShownMenu(), nLine);
        if (!hSubMenu || !popup.CanChoose(nLine) ||
            !OpenLevel(hSubMenu, nLine, popup.GetLineRect(nLine), PopupSide::Beside, bSelectFirst))
            return;
        m_levels[nLevel].nOpen = nLine;
    } else if (bSelectFirst) {
        CPopupMenu& inner = Popup(nLevel + 1);
        inner.Select(inner.Next(-1, 1));
    }
}

void MenuTracking::OpenTitle(int nTitle, bool bSelectFirst)
{
    if (!CanMarkTitle(m_hBar, nTitle))
        return;
    CloseFrom(0);
    Mark(nTitle);
    const MenuTitles* pTitles = TitlesOf(m_hBar);
    if (const HMENU hSubMenu = GetSubMenu(pTitles->GetTitlesMenu(), nTitle))
        OpenLevel(hSubMenu, nTitle, pTitles->GetTitleRect(nTitle), PopupSide::Below, bSelectFirst);
}

void MenuTracking::CloseFrom(std::size_t nLevel)
{
    while (m_levels.size() > nLevel) {
        CPopupMenu* pPopup = m_levels.back().pPopup.release();
        m_levels.pop_back();
        pPopup->DestroyWindow();
        DeleteLater(pPopup); // a message to it may be under way
    }
    if (nLevel > 0 && m_levels.size() == nLevel)
        m_levels.back().nOpen = -1;
}

void MenuTracking::Mark(int nTitle)
{
    m_nTitle = nTitle;
    if (MenuTitles* pTitles = TitlesOf(m_hBar))
        pTitles->MarkTitle(nTitle);
}

// One level a press: the innermost menu, at last the bar's mark.
void MenuTracking::Back()
{
    if (m_levels.size() > (m_hBar ? 0U : 1U))
        CloseFrom(m_levels.size() - 1);
    else
        End();
}

// --- choosing

void MenuTracking::Choose(HMENU hMenu, int nPosition)
{
    const UINT nState = GetMenuState(hMenu, static_cast<UINT>(nPosition), MF_BYPOSITION);
    const UINT nID = GetMenuItemID(hMenu, nPosition);
    if (nID == 0 || nID == 0xFFFFFFFF || (nState & (MF_GRAYED | MF_DISABLED)) != 0)
        return;
    const HWND hOwner = m_hOwner;
    const bool bSend = (m_nFlags & TPM_RETURNCMD) == 0;
    End();
    m_nChosen = nID;
    if (bSend)
        PostMessage(hOwner, WM_COMMAND, nID & 0xFFFFU, 0);
}

void MenuTracking::Activate(std::size_t nLevel, int nLine)
{
    const CPopupMenu& popup = Popup(nLevel);
    const HMENU hMenu = popup.GetShownMenu();
    if (!popup.CanChoose(nLine))
        return;
    if (GetSubMenu(hMenu, nLine))
        OpenSubmenu(nLevel, nLine, true);
    else if (popup.GetCommand(nLine) == GetMenuItemID(hMenu, nLine)) // what was read is still what is meant
        Choose(hMenu, nLine);
}

void MenuTracking::ActivateTitle(int nTitle)
{
    if (!CanMarkTitle(m_hBar, nTitle))
        return;
    const HMENU hMenu = TitlesOf(m_hBar)->GetTitlesMenu();
    if (GetSubMenu(hMenu, nTitle))
        OpenTitle(nTitle, true);
    else
        Choose(hMenu, nTitle);
}

} // namespace splitframe

using namespace splitframe;

UINT TrackPopupMenu(HMENU hMenu, UINT nFlags, int x, int y, HWND hOwner)
{
    const CCallScope scope;
    MenuTracking& tracking = MenuTracking::The();
    const unsigned nSession = tracking.OpenAt(hOwner, hMenu, CPoint(x, y), nFlags);
    if (nSession == 0)
        return 0;
    if (!RunLoopWhile([&] { return tracking.IsRunning(nSession); }))
        tracking.End();
    return (nFlags & TPM_RETURNCMD) != 0 ? tracking.GetChosen() : 1;
}

void EndMenu()
{
    MenuTracking::The().End();
}
