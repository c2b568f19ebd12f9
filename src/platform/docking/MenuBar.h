// The menu bar: the window that shows the items of the main frame's menu side by side. The menu belongs to
// the main frame; items are read from it each time, so that what the host changes is shown.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/window/Wnd.h"

#include <vector>

namespace splitframe {

/// An item's text without the marks of its mnemonic.
struct MenuLabel
{
    CString strText;    // as it is drawn
    int nMnemonic = -1; // index in strText of the letter that is underlined; -1: none
};

/// Reads "&File" as "File" with the mnemonic at 0, "&&" as an ampersand; the first mark wins.
MenuLabel ParseMenuLabel(const CString& strLabel);

class CMenuBar : public CWnd
{
public:
    CMenuBar();
    ~CMenuBar() override;

    /// Creates the bar as a hidden child of the main frame, without a size.
    BOOL CreateBar(CWnd* pMainFrame);

    /// The height that the bar wants, in pixels.
    static int GetHeight();

    /// Shows the items of hMenu; not owned. Null shows none.
    void SetMenu(HMENU hMenu);

    /// Reads the items again and paints the bar.
    void Refresh();

    bool IsEmpty() const { return m_arrItem.empty(); }
    int GetItemCount() const { return static_cast<int>(m_arrItem.size()); }
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
        MenuLabel label;
        bool bEnabled;
        CRect rc;
    };

    HMENU m_hMenu = nullptr; // not owned
    std::vector<Item> m_arrItem;
};

} // namespace splitframe
