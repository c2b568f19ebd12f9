// The view: the child window in which a frame shows its document. Knows its document and the frame around it;
// both know it. A view deletes itself after its window.
#pragma once

#include "platform/window/Wnd.h"

class CDC;
class CDocument;

class SPLITFRAME_PLATFORM_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    /// Takes itself out of its document's list.
    ~CView() override;

    /// The document, or null for a view that has none. Valid until the view is deleted, derived destructors
    /// included.
    CDocument* GetDocument() const { return m_pDocument; }

    /// Called once, after frame, view and document are put together and before the frame is shown. The base's
    /// version calls OnUpdate without a sender.
    virtual void OnInitialUpdate();

    /// The document has changed. @param pSender the view that changed it, or null; lHint and pHint are what
    /// was passed to CDocument::UpdateAllViews. The base's version has the whole view painted again.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);

    /// Draws the document; called from painting, clipped to what needs it. Client coordinates.
    virtual void OnDraw(CDC* pDC) = 0;

    /// Called with the room that the frame has for the view, in the frame's client coordinates, each time the
    /// frame lays itself out or changes its size, before the view is moved there. A derived class may change
    /// the rectangle; the base's version changes nothing.
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

    /// The view becomes or ceases to be the active view of its frame, or its frame the active child frame of
    /// an MDI main frame. The base's version does nothing; the focus is the frame's business.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);

    /// Commands go to the view, then to its document.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    CView();

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    /// Attaches the view to the document of its creation context.
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnPaint();

    DECLARE_MESSAGE_MAP()

private:
    friend class CDocument;
    friend class CFrameWnd;
    void LeaveDocument() noexcept;

    CDocument* m_pDocument = nullptr; // not owned; clears the pointer if it goes first
    CFrameWnd* m_pActiveIn =
        nullptr; // frame whose active view this is; not owned, clears the pointer when it goes
};
