// Menus as data: items with text, command number, state and submenus behind checked handles. Knows nothing of
// how menus are shown. User-interface thread only.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/window/Messages.h"

/// An empty menu for a bar, or to pop up; there is no difference in the data. The caller owns it until it is
/// appended to another menu.
SPLITFRAME_PLATFORM_API HMENU CreateMenu();
SPLITFRAME_PLATFORM_API HMENU CreatePopupMenu();
/// Destroys a menu and its submenus. An owner's item that showed it becomes a plain item. FALSE for a stale
/// handle.
SPLITFRAME_PLATFORM_API BOOL DestroyMenu(HMENU hMenu);
SPLITFRAME_PLATFORM_API BOOL IsMenu(HMENU hMenu);
/// Appends an item.
/// @param nFlags     MF_STRING, MF_SEPARATOR or MF_POPUP with MF_GRAYED, MF_CHECKED
/// @param nIDNewItem command number; with MF_POPUP the submenu's handle: it belongs to this menu from now on
/// @return FALSE, and nothing changes, for a stale handle, a submenu that already has a menu, or a circle
SPLITFRAME_PLATFORM_API BOOL AppendMenuW(HMENU hMenu, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszNewItem);
/// As AppendMenuW, before the item that nPosition names; behind all when there is none.
/// @param nFlags  with MF_BYPOSITION nPosition is a position, else a command number, searched in submenus too
SPLITFRAME_PLATFORM_API BOOL InsertMenuW(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem,
                                         LPCWSTR pszNewItem);
/// Replaces an item's text, number and state; a submenu that it had is destroyed unless it is the new one.
SPLITFRAME_PLATFORM_API BOOL ModifyMenuW(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem,
                                         LPCWSTR pszNewItem);
/// Removes an item; its submenu lives on and belongs to the caller.
SPLITFRAME_PLATFORM_API BOOL RemoveMenu(HMENU hMenu, UINT nPosition, UINT nFlags);
/// Removes an item and destroys its submenu.
SPLITFRAME_PLATFORM_API BOOL DeleteMenu(HMENU hMenu, UINT nPosition, UINT nFlags);
/// -1 for a stale handle.
SPLITFRAME_PLATFORM_API int GetMenuItemCount(HMENU hMenu);
/// Command number of the item at a position; UINT -1 for a submenu or no such item, 0 for a separator.
SPLITFRAME_PLATFORM_API UINT GetMenuItemID(HMENU hMenu, int nPos);
/// The MF_ bits of an item; UINT -1 if there is none. For a submenu the high byte of the low word is its item
/// count.
SPLITFRAME_PLATFORM_API UINT GetMenuState(HMENU hMenu, UINT nPosition, UINT nFlags);
/// The submenu at a position, or null. It stays with its menu.
SPLITFRAME_PLATFORM_API HMENU GetSubMenu(HMENU hMenu, int nPos);
/// The text of an item; empty if there is none.
SPLITFRAME_PLATFORM_API CString GetMenuString(HMENU hMenu, UINT nPosition, UINT nFlags);
/// Sets or clears the check mark (MF_CHECKED). @return the bit before, or UINT -1
SPLITFRAME_PLATFORM_API UINT CheckMenuItem(HMENU hMenu, UINT nPosition, UINT nFlags);
/// Enables or grays an item (MF_ENABLED, MF_GRAYED, MF_DISABLED). @return the bits before, or -1
SPLITFRAME_PLATFORM_API BOOL EnableMenuItem(HMENU hMenu, UINT nPosition, UINT nFlags);

/// Shows a menu and waits until the user has chosen or closed it. Both buttons choose. Meanwhile messages go
/// on: the owner and the menu may be destroyed, which ends it. While a menu is open no other one opens.
/// @param nFlags  TPM_ values
/// @param x       with y the point that it opens at, screen coordinates; the menu is kept inside the display
/// @param hOwner  hears WM_INITMENUPOPUP before a menu opens; gets WM_COMMAND posted when the menu is closed
/// @return with TPM_RETURNCMD the chosen command, else 1; 0 when nothing was chosen, or nothing could be
/// shown
SPLITFRAME_PLATFORM_API UINT TrackPopupMenu(HMENU hMenu, UINT nFlags, int x, int y, HWND hOwner);
/// Closes the menu that is open, if any, without a choice.
SPLITFRAME_PLATFORM_API void EndMenu();

class CWnd;

/// A menu as an object. One that was created or attached owns its menu and destroys it at its end.
class SPLITFRAME_PLATFORM_API CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr;
    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return m_hMenu; }

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL DestroyMenu();
    /// Takes ownership of a menu. FALSE when it already has one, or the handle is stale.
    BOOL Attach(HMENU hMenu);
    /// Gives the menu up; the caller owns it.
    HMENU Detach();
    /// The object that owns the menu, else a borrowed one that lives until the menu is destroyed; null for
    /// stale handles.
    static CMenu* FromHandle(HMENU hMenu);

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR pszNewItem = nullptr)
    {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, pszNewItem);
    }
    BOOL AppendMenuW(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR pszNewItem = nullptr)
    {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, pszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR pszNewItem = nullptr)
    {
        return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, pszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR pszNewItem = nullptr)
    {
        return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, pszNewItem);
    }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nPosition, UINT nFlags) const
    {
        return ::GetMenuState(m_hMenu, nPosition, nFlags);
    }
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    int GetMenuString(UINT nPosition, CString& strText, UINT nFlags) const;
    UINT CheckMenuItem(UINT nPosition, UINT nFlags) { return ::CheckMenuItem(m_hMenu, nPosition, nFlags); }
    BOOL EnableMenuItem(UINT nPosition, UINT nFlags) { return ::EnableMenuItem(m_hMenu, nPosition, nFlags); }
    UINT TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pOwner);
};
