// The table of instruments: newest values, limits and alarm states, one row each. A click or the keys select
// a row, which the unit tells its frame; a double click opens the trends.
//
// Parameters: SHOW=ALARMS (lists only what is in alarm), TAGS (the row selected at the start).
#pragma once

#include "units/ListUnit.h"

#include <vector>

class CTableUnit : public CListUnit
{
    DECLARE_DYNCREATE(CTableUnit)

public:
    CTableUnit() = default;
    GUID GetGUID() override;

    /// Position of the selected instrument, or -1.
    int GetSelection() const { return m_nSelected; }
    /// Where an instrument's row stands, client coordinates; empty when it is not listed.
    CRect GetInstrumentRect(int nInstrument) const;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnNewData() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nSelected; }
    void ListRows() override;
    int GetCurrentRow() const override { return RowOf(m_nSelected); }
    void OnRowByKey(int nRow) override { SelectRow(nRow); }

    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnRButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonDblClk(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    struct Cell
    {
        int nColumn;
        CRect rc;
    };

    int RowOf(int nInstrument) const;
    void Select(int nInstrument);
    void SelectRow(int nRow);
    static std::vector<Cell> PlaceCells(const CRect& rcRow);
    void DrawHeader(CDC& dc, const CRect& rc) const;
    void DrawRow(CDC& dc, int nRow) const;
    void DrawCell(CDC& dc, const Cell& cell, int nInstrument) const;

    std::vector<int> m_arrInstrument; // one a row
    int m_nSelected = -1;
    bool m_bAlarmsOnly = false;
};
