// Figures at a glance: one tile for each instrument, with its newest value, a small line of its last minute
// and its state. A click on a tile selects its instrument.
//
// Parameters: TAGS (instruments, one a tile).
#pragma once

#include "units/PaneUnit.h"

#include <vector>

class CFiguresUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CFiguresUnit)

public:
    CFiguresUnit() = default;
    GUID GetGUID() override;

    /// Where a tile stands, client coordinates.
    CRect GetTileRect(int nTile) const;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnJournalChanged() override { Invalidate(FALSE); } // the data may have been paused
    void OnParameters() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nSelected; }
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnRButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    void SelectAt(CPoint pt);
    void DrawTile(CDC& dc, const CRect& rc, int nInstrument) const;
    void DrawSpark(CDC& dc, const CRect& rc, int nInstrument) const;

    std::vector<int> m_arrInstrument;
    int m_nSelected = -1;
};
