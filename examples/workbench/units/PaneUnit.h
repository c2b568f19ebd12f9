// What the workbench's units have in common: a caption, the same paper behind their content, the mark of the
// pane that has the keyboard, fresh data, a context menu, and what can be done with a pane as such: hide the
// part of the frame beside it, and change it for another view of the same thing. A unit class adds its
// content and its reactions.
//
// A pane may be laid out at any size, down to nothing, so whatever is drawn is computed from the client
// rectangle each time, and cut to it.
//
// Parameters of every unit: TITLE; FOLD=RIGHT,card (a button in the caption hides what lies in that
// direction, LEFT, RIGHT, TOP or BOTTOM, and shows it again; the second word is what it is called);
// SWAP=History,table (a double click puts the unit History, a table, in this one's place).
#pragma once

#include "Parameters.h"
#include "Theme.h"

#include <unit/BaseUnitWnd.h>

#include <optional>

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
    void OnMDIActivate(BOOL bActivate, CWnd* pActivate, CWnd* pDeactivate) override;

    /// The button that hides the neighbour, client coordinates; empty without one.
    CRect GetButtonRect() const;
    /// Whether the user can see any of the pane: it is neither covered up, swapped away nor hidden.
    bool IsInSight() const;

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
    /// The lines of the context menu that only this class has.
    virtual void FillMenu(CMenu& /*menu*/) {}
    /// The instrument that the user has picked here, or -1.
    virtual int GetSelectedInstrument() const { return -1; }

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
    LRESULT UpdateMenu(CMenu* pMenu, CString strText) override;
    void OnDestroy();
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonDblClk(UINT nFlags, CPoint pt);
    void OnRButtonDown(UINT nFlags, CPoint pt);
    void OnContextMenu(CWnd* pWnd, CPoint pt);
    void OnSetFocus(CWnd* pOldWnd);
    void OnKillFocus(CWnd* pNewWnd);
    BOOL OnEraseBkgnd(CDC* pDC);

    void ToggleNeighbour();
    void Swap();
    void OnWatch();
    void OnUpdateNeighbour(CCmdUI* pCmdUI);
    void OnUpdateSwap(CCmdUI* pCmdUI);
    void OnUpdateWatch(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    struct Neighbour
    {
        DIRECT_VALUE direction;
        CString strName;
    };
    struct Other
    {
        CString strUnit;
        CString strKind;
    };

    void ReadPaneParameters();
    bool IsPlacedByRates() const;
    bool IsNeighbourHidden() const;
    CString GetButtonText() const;
    void DrawCaption(CDC& dc, const CRect& rc);
    void DrawButton(CDC& dc) const;
    void DrawNote(CDC& dc, const CRect& rc) const;

    CParameters m_parameters;
    CPen m_penLine;
    std::optional<Neighbour> m_neighbour; // what the button hides
    std::optional<Other> m_other;         // what a double click shows instead
};
