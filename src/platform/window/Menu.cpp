// Menus behind checked handles. A menu owns its items' submenus; each knows the menu that holds it.
#include "platform/window/Menu.h"
#include "platform/window/CallScope.h"
#include "platform/window/Wnd.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CMenu, CObject)

namespace splitframe {

namespace {

constexpr UINT NONE = 0xFFFFFFFF;
constexpr UINT STATE_BITS = MF_GRAYED | MF_DISABLED | MF_CHECKED;

struct Item
{
    UINT nFlags = 0;
    UINT nID = 0;
    HMENU hSubMenu = nullptr; // owned by the menu
    CString strText;
};

struct MenuData
{
    std::vector<Item> items;
    HMENU hHolder = nullptr;          // the menu whose item shows this one
    CMenu* pOwner = nullptr;          // not owned: the object that owns this menu
    std::unique_ptr<CMenu> pBorrowed; // the object for callers when no other owns it
};

// Handles are numbers that are never used again.
struct MenuTable
{
    std::unordered_map<HMENU, std::unique_ptr<MenuData>> menus;
    std::uintptr_t nLast = 0x1000;
};

MenuTable& Table()
{
    static MenuTable table;
    return table;
}

MenuData* Find(HMENU hMenu)
{
    const auto it = Table().menus.find(hMenu);
    return it == Table().menus.end() ? nullptr : it->second.get();
}

HMENU MakeMenu()
{
    const HMENU hMenu = reinterpret_cast<HMENU>(++Table().nLast);
    Table().menus.emplace(hMenu, std::make_unique<MenuData>());
    return hMenu;
}

struct Place
{
    MenuData* pMenu = nullptr;
    std::size_t nPos = 0;

    explicit operator bool() const { return pMenu != nullptr; }
    Item& operator*() const { return pMenu->items[nPos]; }
};

// By command number: the menu itself first, then its submenus in the order of their items.
Place FindByCommand(HMENU hMenu, UINT nID)
{
    std::vector<HMENU> open{hMenu};
    for (std::size_t n = 0; n < open.size(); ++n) {
        MenuData* pMenu = Find(open[n]);
        for (std::size_t nPos = 0; pMenu && nPos < pMenu->items.size(); ++nPos) {
            const Item& item = pMenu->items[nPos];
            if (item.hSubMenu)
                open.push_back(item.hSubMenu);
            else if (item.nID == nID && (item.nFlags & MF_SEPARATOR) == 0)
                return {pMenu, nPos};
        }
    }
    return {};
}

Place FindItem(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    if ((nFlags & MF_BYPOSITION) == 0)
        return FindByCommand(hMenu, nPosition);
    MenuData* pMenu = Find(hMenu);
    return pMenu && nPosition < pMenu->items.size() ? Place{pMenu, nPosition} : Place{};
}

// Whether hInner is hMenu or shown somewhere below it.
bool Holds(HMENU hMenu, HMENU hInner)
{
    while (hInner && hInner != hMenu) {
        const MenuData* pInner = Find(hInner);
        hInner = pInner ? pInner->hHolder : nullptr;
    }
    return hInner != nullptr;
}

bool MakeItem(HMENU hMenu, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszText, Item& item)
{
    item.nFlags = nFlags & (STATE_BITS | MF_POPUP | MF_SEPARATOR);
    item.strText = pszText;
    if ((nFlags & MF_POPUP) == 0) {
        item.nID = (nFlags & MF_SEPARATOR) != 0 ? 0 : static_cast<UINT>(nIDNewItem);
        return true;
    }
    item.hSubMenu = reinterpret_cast<HMENU>(nIDNewItem);
    const MenuData* pSubMenu = Find(item.hSubMenu);
    return pSubMenu && !pSubMenu->hHolder && !Holds(item.hSubMenu, hMenu);
}

BOOL InsertAt(HMENU hMenu, std::size_t nPos, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszText)
{
    MenuData* pMenu = Find(hMenu);
    Item item;
    if (!pMenu || !MakeItem(hMenu, nFlags, nIDNewItem, pszText, item))
        return FALSE;
    if (item.hSubMenu)
        Find(item.hSubMenu)->hHolder = hMenu;
    nPos = std::min(nPos, pMenu->items.size());
    pMenu->items.insert(pMenu->items.begin() + static_cast<std::ptrdiff_t>(nPos), std::move(item));
    return TRUE;
}

// The menu that a place found by command lies in.
HMENU HandleOf(const MenuData* pMenu)
{
    for (const auto& [hMenu, pData] : Table().menus) {
        if (pData.get() == pMenu)
            return hMenu;
    }
    return nullptr;
}

void LeaveHolder(HMENU hMenu, const MenuData& menu)
{
    MenuData* pHolder = Find(menu.hHolder);
    if (!pHolder)
        return;
    for (Item& item : pHolder->items) {
        if (item.hSubMenu == hMenu) {
            item.hSubMenu = nullptr;
            item.nFlags &= ~MF_POPUP;
        }
    }
}

} // namespace
} // namespace splitframe

using namespace splitframe;

HMENU CreateMenu()
{
    return MakeMenu();
}

HMENU CreatePopupMenu()
{
    return MakeMenu();
}

BOOL IsMenu(HMENU hMenu)
{
    return Find(hMenu) ? TRUE : FALSE;
}

BOOL DestroyMenu(HMENU hMenu)
{
    const MenuData* pMenu = Find(hMenu);
    if (!pMenu)
        return FALSE;
    LeaveHolder(hMenu, *pMenu);
    std::vector<HMENU> doomed{hMenu};
    for (std::size_t n = 0; n < doomed.size(); ++n) {
        const auto it = Table().menus.find(doomed[n]);
        if (it == Table().menus.end())
            continue;
        const std::unique_ptr<MenuData> pDoomed = std::move(it->second);
        Table().menus.erase(it);
        for (const Item& item : pDoomed->items) {
            if (item.hSubMenu)
                doomed.push_back(item.hSubMenu);
        }
        for (CMenu* pObject : {pDoomed->pOwner, pDoomed->pBorrowed.get()}) {
            if (pObject)
                pObject->m_hMenu = nullptr;
        }
        DeleteLater(pDoomed->pBorrowed.release()); // a caller may be about to use it
    }
    return TRUE;
}

BOOL AppendMenuW(HMENU hMenu, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszNewItem)
{
    return InsertAt(hMenu, NONE, nFlags, nIDNewItem, pszNewItem);
}

BOOL InsertMenuW(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszNewItem)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return InsertAt(hMenu, NONE, nFlags, nIDNewItem, pszNewItem);
    return InsertAt(HandleOf(place.pMenu), place.nPos, nFlags, nIDNewItem, pszNewItem);
}

BOOL ModifyMenuW(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCWSTR pszNewItem)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return FALSE;
    const HMENU hBefore = (*place).hSubMenu;
    const HMENU hAsked = (nFlags & MF_POPUP) != 0 ? reinterpret_cast<HMENU>(nIDNewItem) : nullptr;
    if (hBefore && hBefore == hAsked) {
        (*place).nFlags = nFlags & (STATE_BITS | MF_POPUP);
        (*place).strText = pszNewItem;
        return TRUE;
    }
    Item item;
    const HMENU hHolder = HandleOf(place.pMenu);
    if (!MakeItem(hHolder, nFlags, nIDNewItem, pszNewItem, item))
        return FALSE;
    if (hBefore)
        DestroyMenu(hBefore);
    if (item.hSubMenu)
        Find(item.hSubMenu)->hHolder = hHolder;
    *place = std::move(item);
    return TRUE;
}

BOOL RemoveMenu(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return FALSE;
    if (MenuData* pSubMenu = Find((*place).hSubMenu))
        pSubMenu->hHolder = nullptr;
    place.pMenu->items.erase(place.pMenu->items.begin() + static_cast<std::ptrdiff_t>(place.nPos));
    return TRUE;
}

BOOL DeleteMenu(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return FALSE;
    const HMENU hSubMenu = (*place).hSubMenu;
    RemoveMenu(hMenu, nPosition, nFlags);
    if (hSubMenu)
        DestroyMenu(hSubMenu);
    return TRUE;
}

int GetMenuItemCount(HMENU hMenu)
{
    const MenuData* pMenu = Find(hMenu);
    return pMenu ? static_cast<int>(pMenu->items.size()) : -1;
}

UINT GetMenuItemID(HMENU hMenu, int nPos)
{
    const Place place = FindItem(hMenu, static_cast<UINT>(nPos), MF_BYPOSITION);
    return !place || (*place).hSubMenu ? NONE : (*place).nID;
}

UINT GetMenuState(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return NONE;
    const Item& item = *place;
    const int nCount = item.hSubMenu ? GetMenuItemCount(item.hSubMenu) : 0;
    return item.nFlags | (static_cast<UINT>(std::min(nCount, 0xFF)) << 8);
}

HMENU GetSubMenu(HMENU hMenu, int nPos)
{
    const Place place = FindItem(hMenu, static_cast<UINT>(nPos), MF_BYPOSITION);
    return place ? (*place).hSubMenu : nullptr;
}

CString GetMenuString(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    return place ? (*place).strText : CString();
}

UINT CheckMenuItem(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return NONE;
    Item& item = *place;
    return std::exchange(item.nFlags, (item.nFlags & ~MF_CHECKED) | (nFlags & MF_CHECKED)) & MF_CHECKED;
}

BOOL EnableMenuItem(HMENU hMenu, UINT nPosition, UINT nFlags)
{
    constexpr UINT bits = MF_GRAYED | MF_DISABLED;
    const Place place = FindItem(hMenu, nPosition, nFlags);
    if (!place)
        return -1;
    Item& item = *place;
    return static_cast<BOOL>(std::exchange(item.nFlags, (item.nFlags & ~bits) | (nFlags & bits)) & bits);
}

CMenu::~CMenu()
{
    MenuData* pMenu = Find(m_hMenu);
    if (pMenu && pMenu->pOwner == this)
        DestroyMenu();
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::DestroyMenu()
{
    return ::DestroyMenu(m_hMenu);
}

BOOL CMenu::Attach(HMENU hMenu)
{
    MenuData* pMenu = Find(hMenu);
    if (m_hMenu || !pMenu || pMenu->pOwner)
        return FALSE;
    m_hMenu = hMenu;
    pMenu->pOwner = this;
    return TRUE;
}

HMENU CMenu::Detach()
{
    if (MenuData* pMenu = Find(m_hMenu); pMenu && pMenu->pOwner == this)
        pMenu->pOwner = nullptr;
    return std::exchange(m_hMenu, nullptr);
}

CMenu* CMenu::FromHandle(HMENU hMenu)
{
    MenuData* pMenu = Find(hMenu);
    if (!pMenu)
        return nullptr;
    if (pMenu->pOwner)
        return pMenu->pOwner;
    if (!pMenu->pBorrowed) {
        pMenu->pBorrowed = std::make_unique<CMenu>();
        pMenu->pBorrowed->m_hMenu = hMenu;
    }
    return pMenu->pBorrowed.get();
}

UINT CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pOwner)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, pOwner ? pOwner->GetSafeHwnd() : nullptr);
}

int CMenu::GetMenuString(UINT nPosition, CString& strText, UINT nFlags) const
{
    strText = ::GetMenuString(m_hMenu, nPosition, nFlags);
    return strText.GetLength();
}
