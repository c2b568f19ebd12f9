// The view of a frame: the window in whose client area the frame's units stand. Draws nothing itself; lays
// the document's split tree out, lets the user drag its lines, passes keys to the helper or the current unit,
// clicks to the unit under the mouse, and the units' notifications to the helper.
#pragma once

#include "layout/SplitLineLink.h"
#include "platform/base/Export.h"
#include "platform/docview/View.h"

class CBaseFrameDoc;
class CBaseFrameHelper;
class CBaseUnitWnd;

class SPLITFRAME_API CBaseFrameView : public CView
{
    DECLARE_DYNCREATE(CBaseFrameView)

public:
    /// Deletes the document's split tree, its cached windows and its unit windows. Global units have gone
    /// home before.
    ~CBaseFrameView() override;

    /// The document, or null when the view has none or one of another kind.
    CBaseFrameDoc* GetFrameDoc() const;

    /// Has the document make its units and split tree, then tells the helper (OnStyleInitial). What a host's
    /// hook throws passes through.
    void OnInitialUpdate() override;

    /// Draws nothing: the units paint themselves.
    void OnDraw(CDC* pDC) override;

    /// Lays the frame's units out in the given room, less 2 pixels at the right and 3 at the bottom, when the
    /// frame is the active one and has units. The room itself is not changed.
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

    /// The function that units notify (CBaseUnitWnd::SetNotifyFunc): hands the notification to the helper.
    /// @param pContext  the unit's parent window, a CWnd*; ignored when it is no CBaseFrameView
    static void OnBaseUnitNotify(void* pContext, UINT nCode, LPARAM lParam);

    /// Escape ends a drag and goes on to whom it is meant for.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Ends a drag when another frame comes to the front.
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;

protected:
    CBaseFrameView();

    /// Sends the global units home while they still have a window.
    void OnBeginDestroy() override;

    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnMouseMove(UINT nFlags, CPoint pt);
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonUp(UINT nFlags, CPoint pt);
    void OnCaptureChanged(CWnd* pWnd);
    void OnRButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonDblClk(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    CBaseFrameHelper* GetHelper() const;
    bool HelperTakes(UINT nMsg, WPARAM wParam, LPARAM lParam);
    void PassKey(UINT nMsg, UINT nChar, LPARAM lParam);
    void SelectNextUnit();

    void Hover(CPoint pt);
    bool IsDragAlive(UINT nFlags) const;
    void CancelDrag();
    void LeaveLine();

    /// The movable line under the mouse or, while it is dragged, the one that the mouse holds. The view has
    /// the mouse as long as there is one.
    splitframe::CSplitLineLink m_pHitLine;
    bool m_bDragging = false;
    bool m_bButtonTold = false; // the drag began with a message that told of the button held
};
