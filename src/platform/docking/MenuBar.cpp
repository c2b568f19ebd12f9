// Painting and placing of the menu bar's items, and their part in menu tracking.
#include "platform/docking/MenuBar.h"

#include "platform/docking/BarMetrics.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Look.h"
#include "platform/window/Menu.h"
#include "platform/window/PaintDC.h"

namespace splitframe {

IMPLEMENT_DYNAMIC(CMenuBar, CWnd)

BEGIN_MESSAGE_MAP(CMenuBar, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CMenuBar::CMenuBar() = default;

CMenuBar::~CMenuBar() = default;

BOOL CMenuBar::CreateBar(CWnd* pMainFrame)
{
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(pszClass, nullptr, WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pMainFrame, 0);
}

void CMenuBar::SetMenu(HMENU hMenu)
{
    m_hMenu = hMenu;
    Refresh();
}

void CMenuBar::Refresh()
{
    m_row.cells.clear();
    for (int nPos = 0; nPos < ::GetMenuItemCount(m_hMenu); ++nPos) {
        const UINT nPosition = static_cast<UINT>(nPos);
        const UINT nState = ::GetMenuState(m_hMenu, nPosition, MF_BYPOSITION);
        CString strLabel = ::GetMenuString(m_hMenu, nPosition, MF_BYPOSITION);
        const int nWidth = MeasureLabel(strLabel, 0) + 2 * MENU_ITEM_PADDING;
        m_row.cells.push_back(
            {std::move(strLabel), (nState & (MF_GRAYED | MF_DISABLED)) == 0, nWidth, CRect(0, 0, 0, 0)});
    }
    Invalidate();
}

int CMenuBar::Arrange(int nWidth)
{
    CPoint pt(MENU_BAR_INDENT, 0);
    for (Item& item : m_row.cells) {
        if (pt.x > MENU_BAR_INDENT && pt.x + item.nWidth > nWidth)
            pt = CPoint(MENU_BAR_INDENT, pt.y + MENU_ROW_HEIGHT);
        const CRect rc(pt, CSize(item.nWidth, MENU_ROW_HEIGHT));
        if (rc != item.rc)
            Invalidate();
        item.rc = rc;
        pt.x = rc.right;
    }
    return pt.y + MENU_ROW_HEIGHT;
}

// --- tracking

CRect CMenuBar::GetTitleRect(int nTitle) const
{
    CRect rc = GetItemRect(nTitle);
    if (!IsWindowVisible() || rc.IsRectEmpty())
        return {};
    ClientToScreen(&rc);
    return rc;
}

void CMenuBar::MarkTitle(int nTitle)
{
    if (nTitle == m_nMarked)
        return;
    for (const int nItem : {m_nMarked, nTitle})
        InvalidateRect(GetItemRect(nItem));
    m_nMarked = nTitle;
}

void CMenuBar::OnLButtonDown(UINT /*nFlags*/, CPoint pt)
{
    TrackMenuBar(GetSafeHwnd(), HitTest(pt));
}

// --- painting

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
    SelectLookFont(dc);
    for (int n = 0; n < GetItemCount(); ++n)
        DrawItem(dc, n);
}

void CMenuBar::DrawItem(CDC& dc, int nItem) const
{
    const Item& item = *m_row.Get(nItem);
    CRect rc = item.rc;
    if (nItem == m_nMarked)
        dc.FillSolidRect(rc.left, rc.top + 2, rc.Width(), rc.Height() - 4, ::GetSysColor(COLOR_MENUHILIGHT));
    dc.SetTextColor(::GetSysColor(item.bEnabled ? COLOR_MENUTEXT : COLOR_GRAYTEXT));
    dc.DrawText(item.strText, &rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

} // namespace splitframe
