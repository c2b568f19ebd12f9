// The MDI client: the window that holds the child frames of an MDI main frame, keeps them at its own size and
// switches between them. Knows the main frame it belongs to, and child frames by handle only.
//
// Between any two calls: the active child is a living child of the client and its topmost one, or there is
// none. Of the children at most one has been told that it is active (m_hTold); it is the active one unless a
// switch is under way.
#pragma once

#include "platform/window/Wnd.h"

#include <vector>

class CMDIChildWnd;
class CMDIFrameWnd;

namespace splitframe {

class CMDIClient : public CWnd
{
public:
    /// @param pMainFrame  outlives the client; not owned
    explicit CMDIClient(CMDIFrameWnd* pMainFrame);
    ~CMDIClient() override;

    /// Creates the client, shown, as the pane of the main frame.
    BOOL CreateClient();

    /// The child frames in the order of their creation.
    std::vector<CMDIChildWnd*> GetChildFrames();

    /// The active child, or null.
    HWND GetActive() const { return m_hActive; }

    /// Raises a child and makes it the active one: the child that was told before hears that it no longer is,
    /// then the new one that it is, then it gets the focus. A hook on the way may choose another child; then
    /// that one stays. Null: no child is active.
    void Activate(HWND hChild);

    /// Gives a child its final place below all others, before it is first shown.
    void TakeIn(HWND hChild);

    /// A child is about to be destroyed or hidden: if it is the active one, the topmost other child that is
    /// shown becomes active, or none.
    void Leave(HWND hChild);

    /// A child is gone.
    void Forget(HWND hChild);

protected:
    void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    static void Raise(HWND hChild);
    bool SwitchTo(HWND hChild);
    HWND FindShownBeside(HWND hChild) const;
    std::vector<HWND> ListChildren();

    CMDIFrameWnd* m_pMainFrame; // not owned, outlives the client
    std::vector<HWND> m_arrChild;
    HWND m_hActive = nullptr;
    HWND m_hTold = nullptr;
};

} // namespace splitframe
