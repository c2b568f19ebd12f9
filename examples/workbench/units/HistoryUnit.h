// The newest samples of one instrument as a table, the newest at the top: time, value, and what changed. It
// takes the place of a chart that is double-clicked, and shows the instrument that is selected in its frame.
//
// Parameters: TAGS (the instrument at the start).
#pragma once

#include "units/ListUnit.h"

class CHistoryUnit : public CListUnit
{
    DECLARE_DYNCREATE(CHistoryUnit)

public:
    CHistoryUnit() = default;
    GUID GetGUID() override;

    int GetInstrumentShown() const { return m_nInstrument; }

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaption() const override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnNewData() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nInstrument; }
    void ListRows() override;

private:
    void DrawHeader(CDC& dc, const CRect& rc) const;
    void DrawRow(CDC& dc, int nRow) const;

    double m_dNewest = 0.0; // time of the sample at the top
    int m_nInstrument = 0;
};
