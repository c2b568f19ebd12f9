// The end of a frame: asked (OnClose) or not (DestroyWindow), and what becomes of the object.
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"

void CFrameWnd::OnClose()
{
    if (m_bClosing)
        return;
    const CCallScope scope;
    const splitframe::ScopedFlag closing(m_bClosing);
    const HWND hWnd = GetSafeHwnd();
    CDocument* pDocument = CFrameWnd::GetActiveDocument();
    if (!pDocument) {
        DestroyWindow();
        return;
    }
    if (!pDocument->CanCloseFrame(this) || !::IsWindow(hWnd))
        return;
    if (CFrameWnd::GetActiveDocument() != pDocument || pDocument->IsShownOutside(this)) {
        pDocument->PreCloseFrame(this);
        DestroyWindow();
    } else {
        pDocument->OnCloseDocument();
    }
}

BOOL CFrameWnd::DestroyWindow()
{
    const CCallScope scope;
    return CWnd::DestroyWindow();
}

void CFrameWnd::PostNcDestroy()
{
    if (CWinThread* pThread = AfxGetThread())
        pThread->ForgetMainWnd(this);
    EndWithoutWindow();
}

void CFrameWnd::EndWithoutWindow()
{
    if (m_bAutoDelete)
        DeleteLater(this); // once only, whoever asks
}

void CFrameWnd::EndFromDestructor()
{
    m_bAutoDelete = FALSE;
    CancelDeleteLater(this);
    const CCallScope scope;
    CWnd::DestroyWindow();
}
