// The child frame of one opened frame: always maximised, without a system menu. Passes activation, focus,
// closing and destruction on to the document's units and helper, and relays commands and messages of the
// units.
#pragma once

#include "platform/base/Export.h"
#include "platform/docking/BCGPMDIChildWnd.h"

class CBaseFrameDoc;

class SPLITFRAME_API CBaseFrameChildWnd : public CBCGPMDIChildWnd
{
    DECLARE_DYNCREATE(CBaseFrameChildWnd)

public:
    /// The active document, or null when there is none or it is of another kind.
    CBaseFrameDoc* GetFrameDoc();

    /// Offers a command to every unit of the frame and to the main frame's global units.
    /// @return 1 when the frame's last unit or the main frame answered other than 0, else 0; 0 without a
    /// document
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam);

    /// Passes a message to the frame helper. @return its answer; 0 without document or helper
    LRESULT ProcessHelperMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam);

    /// Shows the frame maximised, whatever the show command, and makes the frame's name the title.
    void ActivateFrame(int nCmdShow = -1) override;

    /// For the library's own frames: gives the frame, if it is in front, its tree and its global units again,
    /// and lays it out.
    void TakeBack();

protected:
    CBaseFrameChildWnd();
    ~CBaseFrameChildWnd() override;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    /// Sends the global units home while they still have a window, after the next frame has taken what it
    /// places.
    void OnBeginDestroy() override;

    BOOL OnEraseBkgnd(CDC* pDC);
    void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    /// Asks the helper first; it may refuse.
    void OnClose();
    void OnSetFocus(CWnd* pOldWnd);
    void OnDestroy();

    DECLARE_MESSAGE_MAP()
};
