// The view of a frame in the viewer's window: tells the window when lines were dragged.
#pragma once

#include "document/BaseFrameView.h"

class CViewerView : public CBaseFrameView
{
    DECLARE_DYNCREATE(CViewerView)

protected:
    CViewerView();
    ~CViewerView() override;

    /// May end a drag, which computes the shares of all movable lines from where the panes are.
    void OnLButtonUp(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()
};
