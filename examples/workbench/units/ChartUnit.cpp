// Drawing the chart, from the outside in: scales, axes, limits, lines, legend.
#include "units/ChartUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <platform/window/Menu.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int VALUE_LABELS = 46; // width of the column left of the plot
constexpr int TIME_LABELS = 20;  // height of the row below it
constexpr int LEGEND = 24;       // height of the row above it
constexpr int LEGEND_GAP = 38;   // from the end of one of its texts to the next, with the line's mark
constexpr int LABEL_HEIGHT = 14;

} // namespace

IMPLEMENT_DYNCREATE(CChartUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CChartUnit, CPaneUnit)
ON_WM_KEYDOWN()
ON_WM_MOUSEWHEEL()
ON_COMMAND_RANGE(ID_CHART_SPAN_FIRST, ID_CHART_SPAN_LAST, &CChartUnit::OnTimeSpan)
ON_UPDATE_COMMAND_UI_RANGE(ID_CHART_SPAN_FIRST, ID_CHART_SPAN_LAST, &CChartUnit::OnUpdateTimeSpan)
END_MESSAGE_MAP()

GUID CChartUnit::GetGUID()
{
    return GUID_CHART_UNIT;
}

void CChartUnit::OnParameters()
{
    m_arrInstrument = GetParameters().GetInstruments(L"TAGS");
    m_bFollow = GetParameters().IsSet(L"FOLLOW");
    m_nLastSetting = App().GetSettings().nTimeSpan;
    if (m_arrInstrument.empty())
        m_arrInstrument.push_back(0);
}

CString CChartUnit::GetCaption() const
{
    const CString strTitle = GetParameters().GetText(L"TITLE");
    return strTitle.IsEmpty() || m_bFollow ? CString(GetInstrument(m_arrInstrument.front()).pszName)
                                           : strTitle;
}

CString CChartUnit::GetCaptionNote() const
{
    const CString strSpan =
        CString(L"last ") + TIME_SPANS[static_cast<std::size_t>(GetTimeSpanIndex())].pszName;
    return ComparesUnits() ? L"percent of each range, " + strSpan : strSpan;
}

/// Whether lines of different units of measure are to share a scale.
bool CChartUnit::ComparesUnits() const
{
    const CString strUnit = GetInstrument(m_arrInstrument.front()).pszUnit;
    return std::any_of(m_arrInstrument.begin(), m_arrInstrument.end(),
                       [&strUnit](int n) { return !(strUnit == GetInstrument(n).pszUnit); });
}

int CChartUnit::GetTimeSpanIndex() const
{
    return m_nTimeSpan < 0 ? App().GetSettings().nTimeSpan : m_nTimeSpan;
}

double CChartUnit::GetTimeSpan() const
{
    return TIME_SPANS[static_cast<std::size_t>(GetTimeSpanIndex())].dSeconds;
}

void CChartUnit::OnShowInstrument(int nInstrument)
{
    if (!m_bFollow)
        return;
    m_arrInstrument.assign(1, nInstrument);
    Invalidate(FALSE);
}

void CChartUnit::OnSettingsChanged()
{
    const int nSet = App().GetSettings().nTimeSpan;
    if (nSet != m_nLastSetting)
        m_nTimeSpan = -1; // a new setting wins over what was chosen here before
    m_nLastSetting = nSet;
    Invalidate(FALSE);
}

void CChartUnit::SetTimeSpan(int nTimeSpan)
{
    m_nTimeSpan = std::clamp(nTimeSpan, 0, static_cast<int>(TIME_SPANS.size()) - 1);
    Invalidate(FALSE);
}

void CChartUnit::FillMenu(CMenu& menu)
{
    UINT nID = ID_CHART_SPAN_FIRST;
    for (const TimeSpan& span : TIME_SPANS)
        menu.AppendMenu(MF_STRING, nID++, CString(L"Last &") + span.pszName);
}

void CChartUnit::OnTimeSpan(UINT nID)
{
    SetTimeSpan(static_cast<int>(nID - ID_CHART_SPAN_FIRST));
}

void CChartUnit::OnUpdateTimeSpan(CCmdUI* pCmdUI)
{
    pCmdUI->Enable();
    pCmdUI->SetCheck(static_cast<int>(pCmdUI->m_nID - ID_CHART_SPAN_FIRST) == GetTimeSpanIndex());
}

bool CChartUnit::IsKeyFilted(UINT nChar)
{
    return nChar == VK_UP || nChar == VK_DOWN || CPaneUnit::IsKeyFilted(nChar);
}

void CChartUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_UP || nChar == VK_DOWN)
        SetTimeSpan(GetTimeSpanIndex() + (nChar == VK_UP ? -1 : 1));
    else
        CPaneUnit::OnKeyDown(nChar, nRepCnt, nFlags);
}

BOOL CChartUnit::OnMouseWheel(UINT, short zDelta, CPoint pt)
{
    return ProcessMouseWheel(zDelta, pt);
}

BOOL CChartUnit::ProcessMouseWheel(short zDelta, CPoint)
{
    SetTimeSpan(GetTimeSpanIndex() + (zDelta > 0 ? -1 : 1));
    return TRUE;
}

void CChartUnit::Draw(CDC& dc, const CRect& rc)
{
    const Plot plot = MakePlot(rc);
    if (plot.rc.Width() < 8 || plot.rc.Height() < 8)
        return;
    const bool bSingle = m_arrInstrument.size() == 1;
    dc.SaveDC();
    dc.IntersectClipRect(plot.rc);
    if (bSingle && App().GetSettings().bFill)
        DrawFill(dc, plot);
    dc.RestoreDC(-1);

    DrawValueAxis(dc, rc, plot);
    DrawTimeAxis(dc, rc, plot);

    dc.SaveDC();
    dc.IntersectClipRect(plot.rc);
    if (bSingle && App().GetSettings().bLimits)
        DrawLimits(dc, plot);
    for (int n = static_cast<int>(m_arrInstrument.size()) - 1; n >= 0; --n)
        DrawTrace(dc, plot, n);
    dc.RestoreDC(-1);
    DrawLegend(dc, CRect(plot.rc.left, rc.top, plot.rc.right, plot.rc.top));
}

CChartUnit::Plot CChartUnit::MakePlot(const CRect& rc) const
{
    Plot plot;
    plot.rc = rc;
    // A small chart gives its labels up before its lines.
    const bool bLabels = rc.Width() >= 160 && rc.Height() >= 90;
    plot.rc.DeflateRect(bLabels ? VALUE_LABELS : 4, bLabels ? LEGEND : 4, bLabels ? 14 : 4,
                        bLabels ? TIME_LABELS : 4);
    const double dNow = App().GetRecord().GetTime();
    plot.time = {dNow - GetTimeSpan(), dNow, plot.rc.left, plot.rc.right - 1};
    ChooseValueRange(plot);
    plot.value.nFrom = plot.rc.bottom - 1;
    plot.value.nTo = plot.rc.top;
    return plot;
}

/// Lines of one unit of measure share its scale, which fits what is to be seen; others are compared in
/// percent.
void CChartUnit::ChooseValueRange(Plot& plot) const
{
    plot.bPercent = ComparesUnits();
    plot.value.dLow = 0.0;
    plot.value.dHigh = 100.0;
    if (plot.bPercent)
        return;
    double dLow = NO_LIMIT_HIGH, dHigh = NO_LIMIT_LOW, dRange = 0.0;
    for (const int n : m_arrInstrument) {
        const Instrument& instrument = GetInstrument(n);
        const Statistics statistics = App().GetRecord().GetStatistics(n, GetTimeSpan());
        dLow = std::min(dLow, ShownValue(instrument, statistics.dMin));
        dHigh = std::max(dHigh, ShownValue(instrument, statistics.dMax));
        dRange = std::max(dRange,
                          ShownValue(instrument, instrument.dHigh) - ShownValue(instrument, instrument.dLow));
    }
    const double dMargin = std::max((dHigh - dLow) * 0.15, dRange * 0.02);
    plot.value.dLow = dLow - dMargin;
    plot.value.dHigh = dHigh + dMargin;
}

double CChartUnit::PlottedValue(const Plot& plot, int nInstrument, double dValue) const
{
    const Instrument& instrument = GetInstrument(nInstrument);
    return plot.bPercent ? 100.0 * (dValue - instrument.dLow) / (instrument.dHigh - instrument.dLow)
                         : ShownValue(instrument, dValue);
}

void CChartUnit::DrawValueAxis(CDC& dc, const CRect& rc, const Plot& plot) const
{
    static constexpr const wchar_t* FORMATS[] = {L"%.0f", L"%.1f", L"%.2f", L"%.3f"};
    const TickList ticks = ChooseTicks(plot.value.dLow, plot.value.dHigh, plot.rc.Height() / 34);
    for (const double dTick : ticks.arrTick) {
        const int y = plot.value.ToPixel(dTick);
        if (App().GetSettings().bGrid)
            dc.FillSolidRect(plot.rc.left, y, plot.rc.Width(), 1, theme::GRID);
        CString strLabel;
        strLabel.Format(FORMATS[ticks.nDecimals], dTick);
        const CRect rcLabel(rc.left, y - LABEL_HEIGHT / 2, plot.rc.left - 6, y + LABEL_HEIGHT / 2);
        theme::DrawLine(dc, strLabel, rcLabel, theme::Font::Small, theme::MUTED, DT_RIGHT);
    }
    dc.FillSolidRect(plot.rc.left, plot.rc.top, 1, plot.rc.Height(), theme::LINE);
    dc.FillSolidRect(plot.rc.left, plot.rc.bottom - 1, plot.rc.Width(), 1, theme::LINE);
    const CString strUnit = plot.bPercent ? L"%" : ShownUnit(GetInstrument(m_arrInstrument.front()));
    const CRect rcUnit(rc.left, rc.top + 4, plot.rc.left - 6, plot.rc.top - 4);
    theme::DrawLine(dc, strUnit, rcUnit, theme::Font::Small, theme::MUTED, DT_RIGHT);
}

void CChartUnit::DrawTimeAxis(CDC& dc, const CRect& rc, const Plot& plot) const
{
    const CWorkTime& workTime = App().GetWorkTime();
    const double dStep = ChooseTimeStep(plot.time.dHigh - plot.time.dLow, plot.rc.Width() / 84);
    // Marks stand at round times of the day, not of the run.
    const double dOffset = workTime.GetTimeOfDay(0.0);
    const double dFirst = std::ceil((plot.time.dLow + dOffset) / dStep) * dStep - dOffset;
    const int nMarks = static_cast<int>(std::floor((plot.time.dHigh - dFirst) / dStep)) + 1;
    for (int i = 0; i < nMarks; ++i) {
        const double dTime = dFirst + i * dStep;
        const int x = plot.time.ToPixel(dTime);
        if (App().GetSettings().bGrid)
            dc.FillSolidRect(x, plot.rc.top, 1, plot.rc.Height() - 1, theme::GRID);
        const CRect rcLabel(x - 34, plot.rc.bottom + 2, x + 34, rc.bottom);
        if (rcLabel.right <= rc.right && rcLabel.left >= rc.left && rcLabel.Height() >= LABEL_HEIGHT)
            theme::DrawLine(dc, FormatTimeOfDay(workTime.GetTimeOfDay(dTime), dStep < 60.0), rcLabel,
                            theme::Font::Small, theme::MUTED, DT_CENTER);
    }
}

void CChartUnit::DrawLimits(CDC& dc, const Plot& plot) const
{
    const Instrument& instrument = GetInstrument(m_arrInstrument.front());
    const theme::CPenScope pen(dc, theme::ALARM, 1, PS_DASH);
    for (const double dLimit : {instrument.dAlarmLow, instrument.dAlarmHigh}) {
        const double dShown = ShownValue(instrument, dLimit);
        if (dShown < plot.value.dLow || dShown > plot.value.dHigh)
            continue;
        const int y = plot.value.ToPixel(dShown);
        dc.MoveTo(plot.rc.left, y);
        dc.LineTo(plot.rc.right, y);
        const CRect rcLabel(plot.rc.left + 8, y - LABEL_HEIGHT - 1, plot.rc.right, y - 1);
        theme::DrawLine(dc, CString(L"alarm limit ") + FormatValue(instrument, dLimit), rcLabel,
                        theme::Font::Small, theme::ALARM);
    }
}

std::vector<POINT> CChartUnit::TracePoints(const Plot& plot, int nTrace) const
{
    CPlantRecord& record = App().GetRecord();
    const int nInstrument = m_arrInstrument[static_cast<std::size_t>(nTrace)];
    std::vector<POINT> arrPoint;
    // One sample before the plot, so that the line enters it from outside.
    for (int n = std::max(record.FindSample(plot.time.dLow) - 1, 0); n < record.GetSampleCount(); ++n) {
        const PlantSample& sample = record.GetSample(n);
        const double dValue = sample.arrValue[static_cast<std::size_t>(nInstrument)];
        arrPoint.push_back(
            {plot.time.ToPixel(sample.dTime), plot.value.ToPixel(PlottedValue(plot, nInstrument, dValue))});
    }
    return arrPoint;
}

/// Tints what lies below a single line.
void CChartUnit::DrawFill(CDC& dc, const Plot& plot) const
{
    std::vector<POINT> arrArea = TracePoints(plot, 0);
    if (arrArea.size() < 2)
        return;
    arrArea.push_back({arrArea.back().x, plot.rc.bottom - 1});
    arrArea.push_back({arrArea.front().x, plot.rc.bottom - 1});
    const theme::CPenScope pen(dc, theme::PANEL, 1, PS_NULL);
    const theme::CBrushScope brush(dc, theme::Mix(theme::TraceColor(0), theme::PANEL, 0.10));
    dc.Polygon(arrArea.data(), static_cast<int>(arrArea.size()));
}

void CChartUnit::DrawTrace(CDC& dc, const Plot& plot, int nTrace) const
{
    const std::vector<POINT> arrPoint = TracePoints(plot, nTrace);
    const theme::CPenScope pen(dc, theme::TraceColor(nTrace), 2);
    dc.Polyline(arrPoint.data(), static_cast<int>(arrPoint.size()));
}

/// What the legend says of each line: its tag and newest value, or with less room the tag alone.
std::vector<CString> CChartUnit::LegendTexts(CDC& dc, int nRoom) const
{
    std::vector<CString> arrTag, arrText;
    int nWidth = 0;
    for (const int n : m_arrInstrument) {
        const Instrument& instrument = GetInstrument(n);
        arrTag.push_back(instrument.pszTag);
        arrText.push_back(arrTag.back() + L"  " +
                          FormatValueAndUnit(instrument, App().GetRecord().GetValue(n)));
        nWidth += theme::TextWidth(dc, arrText.back(), theme::Font::Small) + LEGEND_GAP;
    }
    return nWidth <= nRoom ? arrText : arrTag;
}

void CChartUnit::DrawLegend(CDC& dc, const CRect& rc) const
{
    if (rc.Height() < LEGEND)
        return;
    int x = rc.left + 4, nTrace = 0;
    for (const CString& strText : LegendTexts(dc, rc.Width())) {
        const int nWidth = theme::TextWidth(dc, strText, theme::Font::Small);
        if (x + 18 + nWidth > rc.right)
            return;
        dc.FillSolidRect(x, rc.top + LEGEND / 2 - 1, 12, 3, theme::TraceColor(nTrace++));
        const CRect rcText(x + 18, rc.top + 2, x + 20 + nWidth, rc.top + LEGEND);
        theme::DrawLine(dc, strText, rcText, theme::Font::Small, theme::TEXT);
        x += nWidth + LEGEND_GAP;
    }
}
