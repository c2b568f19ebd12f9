// The message box: a modal window above its owner with a text, an icon and buttons. Its loop runs inside the
// call that shows it; the owner is disabled meanwhile. Owner and box may be destroyed at any moment.
#pragma once

#include "platform/display/Display.h"
#include "platform/window/Wnd.h"

#include <vector>

namespace splitframe {

class SPLITFRAME_PLATFORM_API CMessageBox : public CWnd
{
    DECLARE_DYNAMIC(CMessageBox)

public:
    explicit CMessageBox(MessageBoxRequest request);
    ~CMessageBox() override;

    /// Shows the box over its owner and waits for the answer. Focus and activation are where they were when
    /// it comes back.
    /// @param hOwner  top-level window that is disabled meanwhile; may be null
    /// @return the ID of the button; what changes least (cancel, no) when the box goes without an answer
    int Run(HWND hOwner);

    int GetButtonCount() const { return static_cast<int>(m_arrButton.size()); }
    int GetButtonID(int nButton) const;
    /// Client coordinates; empty out of range.
    CRect GetButtonRect(int nButton) const;
    /// The button that Enter presses.
    int GetCurrentButton() const { return m_nCurrent; }

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnClose();
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnMouseMove(UINT nFlags, CPoint pt);
    void OnMouseLeave();
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonUp(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Button
    {
        int nID;
        CString strLabel;
        CRect rc;
    };

    BOOL Open(HWND hOwner);
    CSize Layout(const CRect& rcRoom);
    void SetHot(int nButton);
    int ButtonAt(CPoint pt) const;
    int IDWhenClosed() const;
    void MoveOn(int nStep);
    void Press(int nButton);
    void TypeLetter(UINT nChar);
    void DrawButton(CDC& dc, int nButton) const;

    MessageBoxRequest m_request;
    std::vector<Button> m_arrButton;
    CRect m_rcText;
    int m_nCurrent = 0;
    int m_nHot = -1;     // under the pointer
    int m_nPressed = -1; // pressed with the mouse, not yet released
    int m_nAnswer = 0;
};

/// Asks the display to show a box, or shows one here when it has none. @return the ID of a button
int ShowMessageBox(HWND hOwner, const MessageBoxRequest& request);

} // namespace splitframe
