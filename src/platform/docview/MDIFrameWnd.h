// The MDI main frame: a frame whose pane, the MDI client, holds child frames, of which one is active. The
// client is a window of the frame's own; its children are MDI child frames and nothing else. The active child
// is topmost; there may be none while child frames exist that were never activated.
#pragma once

#include "platform/docview/FrameWnd.h"

#include <memory>
#include <vector>

class CMDIChildWnd;
namespace splitframe {
class CMDIClient;
}

class SPLITFRAME_PLATFORM_API CMDIFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();
    ~CMDIFrameWnd() override;

    /// The MDI client's window; null before the frame is created and after it is destroyed.
    HWND m_hWndMDIClient = nullptr;

    /// The active child frame, or null. @param pbMaximized  set to TRUE when there is one: child frames
    /// always fill the client; may be null
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;

    /// The child frames in the order of their creation, hidden ones included.
    std::vector<CMDIChildWnd*> GetChildFrames() const;

    /// Makes a child frame the active one: raised, WM_MDIACTIVATE to the one that was active, then to it,
    /// then the focus. Null and a window that is no child frame of this frame are ignored; for the active one
    /// only the focus is set.
    void MDIActivate(CWnd* pWndActivate);

    /// Activates the shown child frame created after the active one, or before it with bPrevious; at the end
    /// it goes round.
    void MDINext(BOOL bPrevious = FALSE);

    /// Makes a child frame fill the client and activates it. Null and foreign windows are ignored.
    void MDIMaximize(CWnd* pWnd);

    /// The active child frame, or this frame when there is none.
    CFrameWnd* GetActiveFrame() override;
    CDocument* GetActiveDocument() override;

    BOOL OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    /// Ctrl+Tab and Ctrl+F6 activate the next child frame, with Shift the one before; Ctrl+F4 closes the
    /// active one. Accelerators of CFrameWnd come first.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Commands go to the active child frame (its view and document first), this frame, the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Told after a child frame was shown, activated, renamed or destroyed. The base's version renews the
    /// title.
    virtual void OnChildFramesChanged();

protected:
    void OnBeginDestroy() override;
    void PostNcDestroy() override;

    /// Closes every child frame first; the first one that stays keeps this frame, too.
    void OnClose();
    /// When the frame comes back from being minimised or hidden, the active child frame is laid out again:
    /// its panes could not know their sizes meanwhile.
    void OnSize(UINT nType, int cx, int cy);
    void OnShowWindow(BOOL bShow, UINT nStatus);
    /// Hands the focus on to the active child frame.
    void OnSetFocus(CWnd* pOldWnd);
    void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);

    DECLARE_MESSAGE_MAP()

private:
    friend class CMDIChildWnd;
    bool CloseChildFrames();
    BOOL OnChildFrameKey(UINT nKey, bool bRepeated);
    void LayoutActiveChild();

    std::unique_ptr<splitframe::CMDIClient> m_pClient; // its window goes with the frame's
    bool m_bDying = false;                             // the window is being destroyed with all its children
    bool m_bMinimized = false;
};
