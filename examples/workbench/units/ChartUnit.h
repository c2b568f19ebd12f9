// A line chart of one or more instruments over time, fed by the plant's worker thread: each new sample comes
// as a posted UNIT_MSG_ENGINE_DATA and moves the lines on.
//
// Parameters: TAGS (instruments, the first one names the chart), FOLLOW=1 (shows the instrument that is
// selected in the frame). Wheel and the keys Up and Down change the time span of this chart.
#pragma once

#include "units/ChartScale.h"
#include "units/PaneUnit.h"

#include <vector>

class CChartUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CChartUnit)

public:
    CChartUnit() = default;
    GUID GetGUID() override;
    bool IsKeyFilted(UINT nChar) override;
    BOOL ProcessMouseWheel(short zDelta, CPoint pt) override;

    const std::vector<int>& GetInstruments() const { return m_arrInstrument; }
    double GetTimeSpan() const;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaption() const override;
    CString GetCaptionNote() const override;
    void OnParameters() override;
    void OnShowInstrument(int nInstrument) override;
    void OnSettingsChanged() override;
    void FillMenu(CMenu& menu) override;
    int GetSelectedInstrument() const override { return m_arrInstrument.front(); }

    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    void OnTimeSpan(UINT nID);
    void OnUpdateTimeSpan(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    /// Where everything lies for one painting.
    struct Plot
    {
        CRect rc;
        Axis time;
        Axis value;
        bool bPercent =
            false; // lines of different units of measure share one scale in percent of their ranges
    };

    bool ComparesUnits() const;
    Plot MakePlot(const CRect& rc) const;
    void ChooseValueRange(Plot& plot) const;
    double PlottedValue(const Plot& plot, int nInstrument, double dValue) const;
    void DrawValueAxis(CDC& dc, const CRect& rc, const Plot& plot) const;
    void DrawTimeAxis(CDC& dc, const CRect& rc, const Plot& plot) const;
    void DrawLimits(CDC& dc, const Plot& plot) const;
    std::vector<POINT> TracePoints(const Plot& plot, int nTrace) const;
    void DrawFill(CDC& dc, const Plot& plot) const;
    void DrawTrace(CDC& dc, const Plot& plot, int nTrace) const;
    std::vector<CString> LegendTexts(CDC& dc, int nRoom) const;
    void DrawLegend(CDC& dc, const CRect& rc) const;
    int GetTimeSpanIndex() const;
    void SetTimeSpan(int nTimeSpan);

    std::vector<int> m_arrInstrument; // one at least, once there are parameters
    bool m_bFollow = false;
    int m_nTimeSpan = -1; // position in TIME_SPANS; -1: that of the settings
    int m_nLastSetting = 0;
};
