// One instrument in full: newest value, place in its range with the alarm limits, and what it did during the
// chosen time span. Shows the instrument that is selected in its frame.
//
// Parameters: TAGS (the instrument at the start).
#pragma once

#include "units/PaneUnit.h"

class CDetailUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CDetailUnit)

public:
    CDetailUnit() = default;
    GUID GetGUID() override;

    int GetInstrumentShown() const { return m_nInstrument; }

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nInstrument; }

private:
    void DrawGauge(CDC& dc, const CRect& rc) const;
    void DrawFacts(CDC& dc, const CRect& rc) const;

    int m_nInstrument = 0;
};
