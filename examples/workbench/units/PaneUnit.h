// What the workbench's units have in common: a caption, the same paper behind their content, the mark of the
// pane that has the keyboard, and fresh data. A unit class adds its content and its reactions.
//
// A pane may be laid out at any size, down to nothing, so whatever is drawn is computed from the client
// rectangle each time, and cut to it.
#pragma once

#include "Parameters.h"
#include "Theme.h"

#include <unit/BaseUnitWnd.h>

class CWorkbenchApp;

class CPaneUnit : public CBaseUnitWnd
{
    DECLARE_DYNAMIC(CPaneUnit)

public:
    BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo) override;
    BOOL Init(const wchar_t* pszParam) override;
    CPen* GetBorderPen() override;
    LRESULT OnEngineData(WPARAM wParam, LPARAM lParam) override;
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam) override;

protected:
    /// The unit's own content. Drawing is cut to rc, client coordinates, never empty.
    virtual void Draw(CDC& dc, const CRect& rc) = 0;
    /// The title, "TITLE" of the parameters unless a class knows better, and a remark at its right end.
    virtual CString GetCaption() const;
    virtual CString GetCaptionNote() const { return {}; }
    /// 0 for a unit without caption.
    virtual int GetCaptionHeight() const { return theme::CAPTION_HEIGHT; }
    virtual COLORREF GetBackground() const { return theme::PANEL; }
    /// Whether the unit shows data from the plant and wants to hear of it.
    virtual bool IsLive() const { return true; }

    /// New data has been taken over. Paints the unit anew.
    virtual void OnNewData();
    /// The user picked an instrument somewhere in this frame.
    virtual void OnShowInstrument(int nInstrument);
    virtual void OnSettingsChanged() { Invalidate(FALSE); }
    virtual void OnJournalChanged() {}
    virtual void OnParameters() {}

    /// Client coordinates; empty when the pane has no room below its caption.
    CRect GetContentRect() const;
    const CParameters& GetParameters() const { return m_parameters; }
    static CWorkbenchApp& App();

    void CustomDraw(CPaintDC* pDC) override;
    void OnDestroy();
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnSetFocus(CWnd* pOldWnd);
    void OnKillFocus(CWnd* pNewWnd);
    BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    void DrawCaption(CDC& dc, const CRect& rc);

    CParameters m_parameters;
    CPen m_penLine;
};
