// The menu bar: the window that shows the items of the main frame's menu side by side.
// Knows the menu by handle only; reads its items when told to (Refresh), so that what the host changes is
// shown.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/window/Wnd.h"

#include <vector>

namespace splitframe {

class SPLITFRAME_PLATFORM_API CMenuBar : public CWnd
{
    DECLARE_DYNAMIC(CMenuBar)

public:
    CMenuBar();
    ~CMenuBar() override;

    /// Creates the bar as a hidden child of the main frame, without a size.
    BOOL CreateBar(CWnd* pMainFrame);

    /// The height that the bar wants, in pixels.
    static int GetHeight();

    /// Shows the items of hMenu; not owned. Null, and a menu that is destroyed later, show none.
    void SetMenu(HMENU hMenu);

    /// Reads the items again and has the bar painted.
    void Refresh();

    bool IsEmpty() const { return m_arrItem.empty(); }
    int GetItemCount() const { return static_cast<int>(m_arrItem.size()); }
    /// The item's label with the mark of its mnemonic; empty out of range.
    CString GetItemText(int nItem) const;
    /// The item's rectangle in client coordinates; empty for an item that is out of range.
    CRect GetItemRect(int nItem) const;
    /// The item at a point in client coordinates, or -1.
    int HitTest(CPoint pt) const;

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    struct Item
    {
        CString strLabel;
        bool bEnabled;
        CRect rc;
    };

    HMENU m_hMenu = nullptr; // not owned
    std::vector<Item> m_arrItem;
};

} // namespace splitframe
