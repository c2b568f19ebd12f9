// Painting and placing of the menu bar's items.
#include "platform/docking/MenuBar.h"

#include "platform/docking/BarMetrics.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Menu.h"
#include "platform/window/PaintDC.h"

#include <algorithm>

namespace splitframe {

IMPLEMENT_DYNAMIC(CMenuBar, CWnd)

BEGIN_MESSAGE_MAP(CMenuBar, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CMenuBar::CMenuBar() = default;

CMenuBar::~CMenuBar() = default;

BOOL CMenuBar::CreateBar(CWnd* pMainFrame)
{
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(pszClass, nullptr, WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pMainFrame, 0);
}

int CMenuBar::GetHeight()
{
    return MENU_BAR_HEIGHT;
}

void CMenuBar::SetMenu(HMENU hMenu)
{
    m_hMenu = hMenu;
    Refresh();
}

void CMenuBar::Refresh()
{
    m_arrItem.clear();
    int nLeft = MENU_BAR_INDENT;
    for (int nPos = 0; nPos < ::GetMenuItemCount(m_hMenu); ++nPos) {
        const UINT nPosition = static_cast<UINT>(nPos);
        const UINT nState = ::GetMenuState(m_hMenu, nPosition, MF_BYPOSITION);
        CString strLabel = ::GetMenuString(m_hMenu, nPosition, MF_BYPOSITION);
        const int cx = MeasureLabel(strLabel, 0) + 2 * MENU_ITEM_PADDING;
        m_arrItem.push_back({std::move(strLabel), (nState & (MF_GRAYED | MF_DISABLED)) == 0,
                             CRect(nLeft, 0, nLeft + cx, MENU_BAR_HEIGHT)});
        nLeft += cx;
    }
    Invalidate();
}

CString CMenuBar::GetItemText(int nItem) const
{
    const bool bInRange = nItem >= 0 && nItem < GetItemCount();
    return bInRange ? m_arrItem[static_cast<std::size_t>(nItem)].strLabel : CString();
}

CRect CMenuBar::GetItemRect(int nItem) const
{
    const bool bInRange = nItem >= 0 && nItem < GetItemCount();
    return bInRange ? m_arrItem[static_cast<std::size_t>(nItem)].rc : CRect(0, 0, 0, 0);
}

int CMenuBar::HitTest(CPoint pt) const
{
    const auto found =
        std::ranges::find_if(m_arrItem, [pt](const Item& item) { return item.rc.PtInRect(pt) != FALSE; });
    return found == m_arrItem.end() ? -1 : static_cast<int>(found - m_arrItem.begin());
}

BOOL CMenuBar::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CMenuBar::OnPaint()
{
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_MENUBAR));
    SelectBarFont(dc);
    for (const Item& item : m_arrItem) {
        CRect rc = item.rc;
        dc.SetTextColor(::GetSysColor(item.bEnabled ? COLOR_MENUTEXT : COLOR_GRAYTEXT));
        dc.DrawText(item.strLabel, &rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_HIDEPREFIX);
    }
}

} // namespace splitframe
