// The window object: a C++ object tied to one window of the window manager, with its message map and virtual
// hooks. Every window has exactly one such object. The object may outlive its window, and a window ends when
// its object does.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/window/CmdTarget.h"
#include "platform/window/WindowManager.h"

class CDC;
class CFrameWnd;
struct CCreateContext;

namespace splitframe {
class Dispatcher;
class WindowTree;
struct WindowRecord;
} // namespace splitframe

class SPLITFRAME_PLATFORM_API CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
public:
    /// No window yet.
    CWnd();
    /// Destroys the window; handlers of derived classes no longer run then.
    ~CWnd() override;

    /// The window, or null before creation and after WM_NCDESTROY.
    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    /// The object of a window; null for handles without window.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd) { return FromHandle(hWnd); }

    // --- creation and end

    /// Creates a child window (or, without parent, a top-level window).
    /// @param pszClassName  from AfxRegisterWndClass; null: a plain class
    /// @param rect          in the parent's client coordinates
    /// @param nID           control ID
    /// @param pContext      handed to WM_CREATE as lpCreateParams, may be null
    /// @return FALSE when PreCreateWindow or WM_CREATE refuses, the parent is gone, or the object has a
    /// window already.
    ///         Then no window is left, and PostNcDestroy has run if a window was there.
    virtual BOOL Create(LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// As Create, for all kinds of windows. The x CW_USEDEFAULT gives a top-level window the whole display.
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle, int x, int y,
                  int cx, int cy, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Destroys the window and all below it: OnBeginDestroy, then WM_DESTROY parent before child, then
    /// WM_NCDESTROY child before parent. FALSE without window, or when that is already under way.
    virtual BOOL DestroyWindow();

    // --- family

    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetTopWindow() const;
    /// GW_HWNDNEXT or GW_HWNDPREV.
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return GetWindow(nFlag); }
    BOOL IsChild(const CWnd* pWnd) const;
    /// The last ancestor, or this window; null without window.
    CWnd* GetTopLevelParent() const;
    /// The nearest ancestor that is a frame window, not this one; null if there is none.
    CFrameWnd* GetParentFrame() const;
    /// The child with that control ID, or null.
    CWnd* GetDlgItem(int nID) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// Changes style bits that are not about visibility; @return whether they changed. nFlags: SWP_ bits to
    /// redraw with
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    virtual BOOL IsFrameWnd() const;

    // --- place and visibility: as the functions of WindowManager.h

    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void BringWindowToTop();
    void MoveWindow(int x, int y, int cx, int cy, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT pRect, BOOL bRepaint = TRUE);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL IsZoomed() const;
    BOOL IsIconic() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    void GetWindowRect(LPRECT pRect) const;
    void GetClientRect(LPRECT pRect) const;
    void ClientToScreen(POINT* pPoint) const;
    void ClientToScreen(LPRECT pRect) const;
    void ScreenToClient(POINT* pPoint) const;
    void ScreenToClient(LPRECT pRect) const;
    /// From this window's client coordinates to those of another; null: screen coordinates.
    void MapWindowPoints(CWnd* pWndTo, LPRECT pRect) const;
    void MapWindowPoints(CWnd* pWndTo, POINT* pPoints, UINT nCount) const;
    /// The place that a window takes for its client area; the base version changes nothing.
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);

    // --- painting

    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT pRect, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT pRect);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT pRectUpdate = nullptr, void* pRgnUpdate = nullptr,
                      UINT nFlags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    /// The bounds of what is marked in the window itself, client coordinates. FALSE when nothing is.
    BOOL GetUpdateRect(LPRECT pRect) const;
    /// A context to draw at once on what is visible; give it back by ReleaseDC. Null without window.
    CDC* GetDC();
    int ReleaseDC(CDC* pDC);

    // --- text, messages, input

    void SetWindowText(LPCWSTR pszText);
    void GetWindowText(CString& strText) const;
    CString GetWindowText() const;
    LRESULT SendMessage(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    CWnd* SetActiveWindow();
    static CWnd* GetActiveWindow();
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, void* pfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    int MessageBox(LPCWSTR pszText, LPCWSTR pszCaption = nullptr, UINT nType = MB_OK);

    /// Offers a message to this window and its ancestors up to hWndStop before it is dispatched.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// The message being handled by any window, innermost first.
    static const MSG* GetCurrentMessage();

    static const CWnd wndTop;
    static const CWnd wndBottom;

protected:
    friend class splitframe::Dispatcher;
    friend class splitframe::WindowTree;

    /// The last word on what the window is created with. FALSE refuses.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// Everything below still lives; the window may be used, and destroyed, here.
    virtual void OnBeginDestroy();
    /// After WM_NCDESTROY; the window is gone, and the object may delete itself.
    virtual void PostNcDestroy();

    virtual LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam);
    /// Looks a message up in the maps and calls its handler. @return whether there is one
    virtual BOOL OnWndMsg(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam);
    /// A command from a menu, accelerator or child: offered to OnCmdMsg. @return whether it was handled
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// Default processing of the message that is being handled, with its own parameters.
    LRESULT Default();

    // Handlers that derived classes may put in their maps, or call: each does the default processing.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT nMessage);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    explicit CWnd(HWND hSpecial) : m_hWnd(hSpecial) {}
};
