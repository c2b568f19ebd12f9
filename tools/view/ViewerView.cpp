#include "ViewerView.h"

#include "ViewerWindow.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"

IMPLEMENT_DYNCREATE(CViewerView, CBaseFrameView)

BEGIN_MESSAGE_MAP(CViewerView, CBaseFrameView)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

CViewerView::CViewerView() = default;

CViewerView::~CViewerView() = default;

void CViewerView::OnLButtonUp(UINT nFlags, CPoint pt)
{
    const CCallScope scope;
    CBaseFrameView::OnLButtonUp(nFlags, pt);
    auto* pWindow = DYNAMIC_DOWNCAST(CViewerWindow, ::AfxGetMainWnd());
    const CBaseFrameDoc* pDocument = GetSafeHwnd() ? GetFrameDoc() : nullptr;
    if (pWindow && pDocument)
        pWindow->LinesMayHaveMoved(*pDocument);
}
