// What mouse and keys do while a menu is tracked.
#include "platform/window/MenuTracking.h"

#include "platform/window/Input.h"
#include "platform/window/MenuText.h"

namespace splitframe {

namespace {

constexpr UINT_PTR HOVER_TIMER = 1;
constexpr UINT HOVER_DELAY = 250; // milliseconds until a submenu follows the pointer
constexpr UINT_PTR SCROLL_TIMER = 2;
constexpr UINT SCROLL_DELAY = 60; // milliseconds a line
constexpr int WHEEL_LINES = 3;

bool IsMouse(UINT nMessage)
{
    return nMessage >= WM_MOUSEFIRST && nMessage <= WM_MOUSELAST;
}

bool IsKey(UINT nMessage)
{
    return nMessage >= WM_KEYFIRST && nMessage <= WM_KEYLAST;
}

// The message that a press ends with.
UINT ReleaseOf(UINT nPress)
{
    return nPress == WM_LBUTTONDOWN || nPress == WM_LBUTTONDBLCLK   ? WM_LBUTTONUP
           : nPress == WM_RBUTTONDOWN || nPress == WM_RBUTTONDBLCLK ? WM_RBUTTONUP
                                                                    : WM_MBUTTONUP;
}

} // namespace

bool MenuTracking::Takes(const MSG& msg)
{
    if (!m_bActive) {
        // The press outside of the menu was not for the window there, nor is its release.
        const bool bTakes = m_nReleaseToSwallow != 0 && msg.message == m_nReleaseToSwallow;
        if (bTakes)
            m_nReleaseToSwallow = 0;
        return bTakes;
    }
    const CCallScope scope;
    Prune();
    if (!m_bActive)
        return false;
    if (IsMouse(msg.message))
        return OnMouse(msg);
    if (IsKey(msg.message))
        return OnKey(msg);
    const int nLevel = msg.message == WM_TIMER ? LevelOf(msg.hwnd) : -1;
    if (nLevel >= 0)
        OnTimer(static_cast<std::size_t>(nLevel), msg.wParam);
    return nLevel >= 0;
}

// --- mouse

bool MenuTracking::OnMouse(const MSG& msg)
{
    const CPoint pt(msg.pt);
    switch (msg.message) {
    case WM_MOUSEMOVE:
        if (!(pt == m_ptLast))
            Hover(pt);
        m_ptLast = pt;
        return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
        Release(pt);
        return true;
    case WM_MOUSEWHEEL:
        Wheel(pt, static_cast<short>(HIWORD(msg.wParam)));
        return true;
    case WM_MBUTTONUP:
        return true;
    default:
        m_ptLast = pt;
        return Press(pt, msg.message);
    }
}

void MenuTracking::Hover(CPoint pt)
{
    SetCursor(LoadCursor(nullptr, IDC_ARROW)); // the window below has set its own
    const int nLevel = LevelAt(pt);
    const int nTitle = nLevel < 0 ? TitleAt(m_hBar, pt) : -1;
    if (nLevel >= 0)
        HoverLevel(static_cast<std::size_t>(nLevel), pt);
    else if (nTitle >= 0 && nTitle != m_nTitle && CanMarkTitle(m_hBar, nTitle))
        m_levels.empty() ? Mark(nTitle) : OpenTitle(nTitle, false);
    else if (nTitle < 0 && !m_levels.empty())
        Popup(m_levels.size() - 1).Select(-1);
}

void MenuTracking::HoverLevel(std::size_t nLevel, CPoint pt)
{
    for (std::size_t n = 0; n < nLevel; ++n) {
        Popup(n).KillTimer(HOVER_TIMER);
        Popup(n).Select(m_levels[n].nOpen); // on the way here other lines were passed
    }
    CPopupMenu& popup = Popup(nLevel);
    if (popup.ScrollDirection(pt) != 0)
        popup.SetTimer(SCROLL_TIMER, SCROLL_DELAY);
    popup.Select(popup.LineAt(pt));
    if (popup.GetSelection() == m_levels[nLevel].nOpen)
        popup.KillTimer(HOVER_TIMER);
    else
        popup.SetTimer(HOVER_TIMER, HOVER_DELAY);
}

void MenuTracking::OnTimer(std::size_t nLevel, UINT_PTR nTimer)
{
    CPopupMenu& popup = Popup(nLevel);
    if (nTimer == HOVER_TIMER) {
        popup.KillTimer(HOVER_TIMER);
        OpenSubmenu(nLevel, popup.GetSelection(), false);
        return;
    }
    const int nDirection = popup.ScrollDirection(m_ptLast);
    CloseFrom(nLevel + 1);
    if (nDirection == 0)
        popup.KillTimer(SCROLL_TIMER);
    else
        popup.Scroll(nDirection);
}

// @return whether the press is used up; a press of the right button elsewhere may open the next context menu
bool MenuTracking::Press(CPoint pt, UINT nMessage)
{
    const int nLevel = LevelAt(pt);
    if (nLevel >= 0) {
        const int nLine = Popup(static_cast<std::size_t>(nLevel)).LineAt(pt);
        HoverLevel(static_cast<std::size_t>(nLevel), pt);
        OpenSubmenu(static_cast<std::size_t>(nLevel), nLine, false);
        return true;
    }
    const int nTitle = TitleAt(m_hBar, pt);
    const bool bOpenAlready = nTitle == m_nTitle && !m_levels.empty();
    if (nTitle >= 0 && !bOpenAlready) {
        OpenTitle(nTitle, false);
        return true;
    }
    End();
    const bool bRight = nMessage == WM_RBUTTONDOWN || nMessage == WM_RBUTTONDBLCLK;
    if (nTitle < 0 && bRight)
        return false;
    m_nReleaseToSwallow = ReleaseOf(nMessage);
    return true;
}

void MenuTracking::Release(CPoint pt)
{
    const int nLevel = LevelAt(pt);
    if (nLevel >= 0) {
        const CPopupMenu& popup = Popup(static_cast<std::size_t>(nLevel));
        const int nLine = popup.LineAt(pt);
        if (!GetSubMenu(popup.GetShownMenu(), nLine))
            Activate(static_cast<std::size_t>(nLevel), nLine);
        return;
    }
    const int nTitle = TitleAt(m_hBar, pt);
    const MenuTitles* pTitles = TitlesOf(m_hBar);
    if (nTitle >= 0 && nTitle == m_nTitle && !GetSubMenu(pTitles->GetTitlesMenu(), nTitle))
        ActivateTitle(nTitle);
}

void MenuTracking::Wheel(CPoint pt, int nDelta)
{
    const int nLevel = LevelAt(pt);
    if (nLevel < 0)
        return;
    CloseFrom(static_cast<std::size_t>(nLevel) + 1);
    CPopupMenu& popup = Popup(static_cast<std::size_t>(nLevel));
    popup.Scroll(nDelta > 0 ? -WHEEL_LINES : WHEEL_LINES);
    popup.Select(popup.LineAt(pt));
}

int MenuTracking::LevelAt(CPoint ptScreen) const
{
    for (std::size_t n = m_levels.size(); n-- > 0;) {
        CRect rc;
        Popup(n).GetWindowRect(&rc);
        if (rc.PtInRect(ptScreen))
            return static_cast<int>(n);
    }
    return -1;
}

int MenuTracking::LevelOf(HWND hWnd) const
{
    for (std::size_t n = 0; n < m_levels.size(); ++n) {
        if (Popup(n).GetSafeHwnd() == hWnd)
            return static_cast<int>(n);
    }
    return -1;
}

// --- keys

bool MenuTracking::OnKey(const MSG& msg)
{
    const UINT nKey = static_cast<UINT>(msg.wParam);
    switch (msg.message) {
    case WM_KEYDOWN:
        return PressKey(nKey, false);
    case WM_SYSKEYDOWN:
        return PressKey(nKey, true);
    case WM_SYSKEYUP:
        if (nKey == VK_MENU && AltWasPressedAlone())
            End();
        return true;
    case WM_CHAR:
        Typed(static_cast<wchar_t>(msg.wParam));
        return true;
    default:
        return true;
    }
}

// @return whether the key is used up: all but Alt+F4 are
bool MenuTracking::PressKey(UINT nKey, bool bSystem)
{
    switch (nKey) {
    case VK_F10:
        End();
        break;
    case VK_ESCAPE:
        Back();
        break;
    case VK_UP:
    case VK_DOWN:
        MoveUpDown(nKey == VK_UP ? -1 : 1);
        break;
    case VK_LEFT:
    case VK_RIGHT:
        MoveSideways(nKey == VK_LEFT ? -1 : 1);
        break;
    case VK_HOME:
    case VK_END:
        MoveToEnd(nKey == VK_HOME ? 1 : -1);
        break;
    case VK_RETURN:
        Enter();
        break;
    default:
        if (bSystem && nKey == VK_F4) {
            End();
            return false;
        }
        // With Alt held no text comes along.
        if (bSystem && IsLetterOrDigitKey(nKey))
            Typed(static_cast<wchar_t>(nKey));
    }
    return true;
}

void MenuTracking::MoveUpDown(int nStep)
{
    if (m_levels.empty())
        return OpenTitle(m_nTitle, true);
    CPopupMenu& popup = Popup(m_levels.size() - 1);
    popup.Select(popup.Next(popup.GetSelection(), nStep));
}

void MenuTracking::MoveSideways(int nStep)
{
    if (!m_levels.empty()) {
        const std::size_t nLast = m_levels.size() - 1;
        const CPopupMenu& popup = Popup(nLast);
        const int nLine = popup.GetSelection();
        if (nStep > 0 && GetSubMenu(popup.GetShownMenu(), nLine))
            return OpenSubmenu(nLast, nLine, true);
        if (nStep < 0 && nLast > 0)
            return CloseFrom(nLast);
    }
    const int nTitle = m_hBar ? NextTitle(m_hBar, m_nTitle, nStep) : -1;
    if (nTitle < 0)
        return;
    m_levels.empty() ? Mark(nTitle) : OpenTitle(nTitle, true);
}

void MenuTracking::MoveToEnd(int nStep)
{
    if (m_levels.empty()) {
        const int nTitle = NextTitle(m_hBar, -1, 1);
        return Mark(nStep > 0 ? nTitle : NextTitle(m_hBar, nTitle, -1));
    }
    CPopupMenu& popup = Popup(m_levels.size() - 1);
    popup.Select(popup.Next(-1, nStep));
}

void MenuTracking::Enter()
{
    if (m_levels.empty())
        ActivateTitle(m_nTitle);
    else
        Activate(m_levels.size() - 1, Popup(m_levels.size() - 1).GetSelection());
}

void MenuTracking::Typed(wchar_t ch)
{
    if (m_levels.empty()) {
        const LetterMatch match = FindByLetter(TitleLabels(m_hBar), m_nTitle, ch);
        if (match.nItem >= 0)
            match.bOnly ? ActivateTitle(match.nItem) : Mark(match.nItem);
        return;
    }
    const std::size_t nLast = m_levels.size() - 1;
    CPopupMenu& popup = Popup(nLast);
    const LetterMatch match = FindByLetter(popup.GetLabels(), popup.GetSelection(), ch);
    if (match.nItem >= 0)
        match.bOnly ? Activate(nLast, match.nItem) : popup.Select(match.nItem);
}

} // namespace splitframe
