// Menu tracking: what the user does while a menu is open. There is one tracking at a time: of a bar's titles
// and the menus that drop from them, or of a context menu. It stands before dispatch in the message loop and
// takes all mouse and keyboard input; everything else goes on as ever, so that handlers may destroy menus,
// windows, the bar or the owner meanwhile: all are known by handle and looked at again before each step.
//
// Between any two calls of an active tracking: the owner lives; m_levels are the open menus, outermost first,
// each opened by a line of the one before or, the first, by the marked title or a point.
#pragma once

#include "platform/window/MenuTitles.h"
#include "platform/window/PopupMenu.h"

#include <memory>
#include <vector>

namespace splitframe {

class MenuTracking
{
public:
    static MenuTracking& The();

    /// Marks a title of a bar, and opens its menu if asked. Nothing when a menu is tracked already.
    void EnterBar(HWND hBar, int nTitle, bool bOpen);
    /// The same by a typed letter, which means a title; 0: the first title, without opening.
    /// @return false when no title has the letter, or nothing could be marked
    bool EnterBarByKey(HWND hBar, wchar_t ch);
    /// Opens a context menu. @return a number for IsRunning, 0 when nothing was opened
    unsigned OpenAt(HWND hOwner, HMENU hMenu, CPoint ptScreen, UINT nFlags);
    bool IsRunning(unsigned nSession) const { return m_bActive && m_nSession == nSession; }
    bool IsActive() const { return m_bActive; }
    /// The command chosen last; 0 when the last tracking ended without.
    UINT GetChosen() const { return m_nChosen; }
    void End();

    /// Whether the tracking takes a message before it is dispatched.
    bool Takes(const MSG& msg);
    /// Closes what has lost its menu or window.
    void Prune();

private:
    struct Level
    {
        std::unique_ptr<CPopupMenu> pPopup;
        int nOpen = -1; // the line whose submenu is the next level
    };

    // opening and closing
    bool Start(HWND hOwner, HWND hBar);
    bool OpenLevel(HMENU hMenu, int nPosition, const CRect& rcAnchor, PopupSide side, bool bSelectFirst);
    void OpenSubmenu(std::size_t nLevel, int nLine, bool bSelectFirst);
    void OpenTitle(int nTitle, bool bSelectFirst);
    void CloseFrom(std::size_t nLevel);
    void Mark(int nTitle);
    void Back();
    void Choose(HMENU hMenu, int nPosition);
    void Activate(std::size_t nLevel, int nLine);
    void ActivateTitle(int nTitle);

    // what is where
    int LevelAt(CPoint ptScreen) const;
    int LevelOf(HWND hWnd) const;
    CPopupMenu& Popup(std::size_t nLevel) const { return *m_levels[nLevel].pPopup; }

    // input
    bool OnMouse(const MSG& msg);
    bool OnKey(const MSG& msg);
    void OnTimer(std::size_t nLevel, UINT_PTR nTimer);
    void Hover(CPoint pt);
    void HoverLevel(std::size_t nLevel, CPoint pt);
    bool Press(CPoint pt, UINT nMessage);
    void Release(CPoint pt);
    void Wheel(CPoint pt, int nDelta);
    bool PressKey(UINT nKey, bool bSystem);
    void MoveUpDown(int nStep);
    void MoveSideways(int nStep);
    void MoveToEnd(int nStep);
    void Enter();
    void Typed(wchar_t ch);

    bool m_bActive = false;
    unsigned m_nSession = 0;
    HWND m_hOwner = nullptr; // gets the command
    HWND m_hBar = nullptr;   // null for a context menu
    int m_nTitle = -1;
    UINT m_nFlags = 0; // TPM_ bits
    UINT m_nChosen = 0;
    std::vector<Level> m_levels;
    CPoint m_ptLast; // where the pointer was last seen: a menu that opens beneath it selects nothing
    UINT m_nReleaseToSwallow = 0; // message; the press of this button ended the tracking
};

} // namespace splitframe
