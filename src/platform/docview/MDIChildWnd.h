// The MDI child frame: a frame inside the client area of an MDI main frame. It always fills that area;
// inactive child frames stay visible and are merely covered by the active one.
#pragma once

#include "platform/docview/FrameWnd.h"

class CMDIFrameWnd;

class SPLITFRAME_PLATFORM_API CMDIChildWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    /// Creates the window, hidden and below the other child frames. Activates nothing.
    /// @param rect        not used: a child frame fills the client area
    /// @param pParentWnd  the MDI main frame; null: the application's main window
    /// @return FALSE also when there is no MDI main frame
    BOOL Create(const wchar_t* pszClassName, const wchar_t* pszWindowName,
                DWORD dwStyle = WS_CHILD | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                CWnd* pParentWnd = nullptr, const wchar_t* pszMenuName = nullptr, DWORD dwExStyle = 0,
                CCreateContext* pContext = nullptr) override;

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;

    /// The main frame around this one, or null before the window exists and after it is gone.
    CMDIFrameWnd* GetMDIFrame() const;

    /// Whether the frame has been shown, or is about to be: hidden frames are not named by tabs and not
    /// switched to.
    bool IsShown() const;

    /// Makes it the active child frame of its main frame.
    void MDIActivate();
    /// Makes it fill the client area and activates it.
    void MDIMaximize();
    /// Destroys the frame without asking its document. The next child frame is activated first.
    void MDIDestroy();

    /// Shows the frame at its final size, raises and activates it; one that is active already is laid out
    /// again. Every show command shows it so but SW_HIDE, which hides it and activates nothing.
    void ActivateFrame(int nCmdShow = -1) override;

    /// The frame's text is the document's title, or its own title when there is no document.
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;

    /// Commands go to the active view, its document, this frame; the main frame asks on.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void OnBeginDestroy() override;
    void PostNcDestroy() override;

    /// The frame becomes (bActivate) or ceases to be the active child frame. The base's version tells the
    /// active view (CView::OnActivateView).
    void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);

    LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void ShowAtFinalSize(CMDIFrameWnd& main);

    HWND m_hMDIFrame = nullptr; // main frame, by handle: it may go first
    bool m_bShowing = false;
    HWND m_hLast = nullptr; // the window's own handle, kept to the end of its destruction
};
