// The table of instruments: newest values, limits and alarm states, one row each. A click or the keys select
// a row, which the unit tells its frame; a double click opens the trends.
//
// Parameters: SHOW=ALARMS (lists only what is in alarm), TAGS (the row selected at the start).
#pragma once

#include "units/PaneUnit.h"
#include "units/ScrollList.h"

#include <vector>

class CTableUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CTableUnit)

public:
    CTableUnit() = default;
    GUID GetGUID() override;
    BOOL ProcessMouseWheel(short zDelta, CPoint pt) override;

    /// Position of the selected instrument, or -1.
    int GetSelection() const { return m_nSelected; }
    /// Where an instrument's row stands, client coordinates; empty when it is not listed.
    CRect GetInstrumentRect(int nInstrument) const;
    const CScrollList& GetRows() const { return m_rows; }

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnNewData() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nSelected; }

    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnRButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonDblClk(UINT nFlags, CPoint pt);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Cell
    {
        int nColumn;
        CRect rc;
    };

    void ListRows();
    int RowOf(int nInstrument) const;
    void Select(int nInstrument);
    void SelectAt(CPoint pt);
    static std::vector<Cell> PlaceCells(const CRect& rcRow);
    void DrawHeader(CDC& dc, const CRect& rc) const;
    void DrawRow(CDC& dc, int nRow) const;
    void DrawCell(CDC& dc, const Cell& cell, int nInstrument) const;

    std::vector<int> m_arrInstrument; // one a row
    CScrollList m_rows;
    int m_nSelected = -1;
    bool m_bAlarmsOnly = false;
};
