// The strip of tabs under the menu bar: one tab for each shown child frame in the order of their creation,
// bearing the frame's text. A press on a tab activates its frame; its close mark and the middle button close
// the frame, which is asked like for every other way of closing. Where the tabs have no room the strip
// scrolls, by the arrows at its end, which go on while they are held, and the wheel. Knows the main frame it
// belongs to and child frames by handle only; asks for them anew whenever something changed.
#pragma once

#include "platform/docking/CellRow.h"
#include "platform/window/Wnd.h"

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

    bool IsEmpty() const { return m_row.GetCount() == 0; }
    int GetTabCount() const { return m_row.GetCount(); }
    CString GetTabText(int nTab) const { return m_row.GetText(nTab); }
    /// What can be seen of the tab, in client coordinates; empty for a tab that is scrolled away or out of
    /// range.
    CRect GetTabRect(int nTab) const;
    /// The close mark of a tab, in client coordinates. It shows on the active tab and under the pointer.
    CRect GetCloseRect(int nTab) const;
    /// The arrow that scrolls in a direction, -1 or 1; empty while all tabs have room.
    CRect GetArrowRect(int nDirection) const;
    /// The tab of the active frame, or -1.
    int GetActiveTab() const;
    /// The tab at a point in client coordinates, or -1.
    int HitTest(CPoint pt) const;

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnSize(UINT nType, int cx, int cy);
    void OnMouseMove(UINT nFlags, CPoint pt);
    void OnMouseLeave();
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonUp(UINT nFlags, CPoint pt);
    void OnTimer(UINT_PTR nIDEvent);
    void OnCaptureChanged(CWnd* pWnd);
    void OnMButtonDown(UINT nFlags, CPoint pt);
    void OnMButtonUp(UINT nFlags, CPoint pt);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Tab
    {
        HWND hFrame;
        CString strText;
        int nWantedWidth;
        CRect rc; // scrolled along
    };

    // What the pointer is at: a tab or its mark by the frame's handle, or an arrow by its direction.
    struct Part
    {
        HWND hFrame = nullptr;
        bool bMark = false;
        int nArrow = 0;
        bool operator==(const Part&) const = default;
    };

    void TakeOver(std::vector<Tab> arrTab, HWND hActiveFrame);
    void MoveMark(HWND hActiveFrame);
    int FindWidthLimit(int nRoom) const;
    void PlaceTabs();
    bool ScrollTo(int nScroll);
    bool ShowActiveTab();
    void InvalidateFrame(HWND hFrame);
    Part FindPart(CPoint pt) const;
    void SetHot(const Part& part);
    void HoldArrow(UINT nDelay);
    void CloseFrame(HWND hFrame);
    void DrawTab(CDC& dc, int nTab) const;
    void DrawTabShape(CDC& dc, const CRect& rc, bool bActive) const;
    void DrawCloseMark(CDC& dc, const CRect& rc, const Part& part) const;
    void DrawArrow(CDC& dc, int nDirection) const;

    CMDIFrameWnd* m_pMainFrame; // not owned, outlives the strip
    CellRow<Tab> m_row;
    HWND m_hActiveFrame = nullptr;
    CRect m_rcRoom;       // where tabs can be seen
    int m_nTabsWidth = 0; // of all tabs side by side
    int m_nScroll = 0;    // pixels that are scrolled away at the left
    Part m_hot;           // under the pointer
    Part m_pressed;       // a mark or an arrow that is pressed, or the tab under the pressed middle button
};

} // namespace splitframe
