// The menu bar: the window that shows the items of the main frame's menu side by side, in as many rows as
// they need, and hands clicks on to menu tracking. Knows the menu by handle only; reads its items when told
// to (Refresh), so that what the host changes is shown.
#pragma once

#include "platform/docking/CellRow.h"
#include "platform/window/MenuTitles.h"
#include "platform/window/Wnd.h"

namespace splitframe {

class SPLITFRAME_PLATFORM_API CMenuBar : public CWnd, public MenuTitles
{
    DECLARE_DYNAMIC(CMenuBar)

public:
    CMenuBar();
    ~CMenuBar() override;

    /// Creates the bar as a hidden child of the main frame, without a size.
    BOOL CreateBar(CWnd* pMainFrame);

    /// Places the items for a width in pixels: those that have no room go on in the next row.
    /// @return the height that the bar wants, in pixels
    int Arrange(int nWidth);

    /// Shows the items of hMenu; not owned. Null, and a menu that is destroyed later, show none.
    void SetMenu(HMENU hMenu);

    /// Reads the items again and has the bar painted.
    void Refresh();

    bool IsEmpty() const { return m_row.GetCount() == 0; }
    int GetItemCount() const { return m_row.GetCount(); }
    /// The item's label with the mark of its mnemonic; empty out of range.
    CString GetItemText(int nItem) const { return m_row.GetText(nItem); }
    /// The item's rectangle in client coordinates; empty for an item that is out of range.
    CRect GetItemRect(int nItem) const { return m_row.GetRect(nItem); }
    /// The item at a point in client coordinates, or -1.
    int HitTest(CPoint pt) const { return m_row.HitTest(pt); }
    /// The item that menu tracking has marked, or -1.
    int GetMarkedItem() const { return m_nMarked; }

    HMENU GetTitlesMenu() const override { return m_hMenu; }
    CRect GetTitleRect(int nTitle) const override;
    void MarkTitle(int nTitle) override;

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnLButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Item
    {
        CString strText;
        bool bEnabled;
        int nWidth;
        CRect rc;
    };

    void DrawItem(CDC& dc, int nItem) const;

    HMENU m_hMenu = nullptr; // not owned
    CellRow<Item> m_row;
    int m_nMarked = -1;
};

} // namespace splitframe
