// The strip of tabs under the menu bar: one tab for each shown child frame in the order of their creation,
// bearing the frame's text. A press on a tab activates its frame. Knows the main frame it belongs to and
// child frames by handle only; asks for them anew whenever something changed.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/window/Wnd.h"

#include <vector>

class CMDIFrameWnd;

namespace splitframe {

class SPLITFRAME_PLATFORM_API CTabStrip : public CWnd
{
    DECLARE_DYNAMIC(CTabStrip)

public:
    /// @param pMainFrame  outlives the strip; not owned
    explicit CTabStrip(CMDIFrameWnd* pMainFrame);
    ~CTabStrip() override;

    /// Creates the strip as a hidden child of the main frame, without a size.
    BOOL CreateStrip();

    /// The height that the strip wants, in pixels.
    static int GetHeight();

    /// Takes the titles and the active frame over from the main frame; paints only what has changed.
    /// @return true when there are now tabs and were none before, or the other way round
    bool Refresh();

    bool IsEmpty() const { return m_arrTab.empty(); }
    int GetTabCount() const { return static_cast<int>(m_arrTab.size()); }
    CString GetTabText(int nTab) const;
    /// The tab's rectangle in client coordinates; empty for a tab that is out of range.
    CRect GetTabRect(int nTab) const;
    /// The tab of the active frame, or -1.
    int GetActiveTab() const;
    /// The tab at a point in client coordinates, or -1.
    int HitTest(CPoint pt) const;

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Tab
    {
        HWND hFrame;
        CString strText;
        int nWantedWidth;
        CRect rc;
    };

    void TakeOver(std::vector<Tab> arrTab, HWND hActiveFrame);
    void MoveMark(HWND hActiveFrame);
    int FindWidthLimit(int nRoom) const;
    void PlaceTabs();
    void DrawTab(CDC& dc, const Tab& tab, bool bActive) const;

    CMDIFrameWnd* m_pMainFrame; // not owned, outlives the strip
    std::vector<Tab> m_arrTab;
    HWND m_hActiveFrame = nullptr;
};

} // namespace splitframe
