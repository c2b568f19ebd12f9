// The newest samples of one instrument as a table, the newest at the top: time, value, and what changed. It
// takes the place of a chart that is double-clicked, and shows the instrument that is selected in its frame.
//
// Parameters: TAGS (the instrument at the start).
#pragma once

#include "units/PaneUnit.h"
#include "units/ScrollList.h"

class CHistoryUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CHistoryUnit)

public:
    CHistoryUnit() = default;
    GUID GetGUID() override;
    BOOL ProcessMouseWheel(short zDelta, CPoint pt) override;

    int GetInstrumentShown() const { return m_nInstrument; }

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaption() const override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnNewData() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nInstrument; }

    void OnSize(UINT nType, int cx, int cy);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    void ListRows();
    void DrawHeader(CDC& dc, const CRect& rc) const;
    void DrawRow(CDC& dc, int nRow) const;

    CScrollList m_rows;
    double m_dNewest = 0.0; // time of the sample at the top
    int m_nInstrument = 0;
};
