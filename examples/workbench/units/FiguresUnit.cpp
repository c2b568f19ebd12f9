// Tiles in rows and columns.
#include "units/FiguresUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"
#include "units/ChartScale.h"

#include <algorithm>

namespace {

constexpr int GAP = 8;
constexpr int TILE_WIDTH = 172; // a tile is at least about this wide
constexpr double SPARK_SPAN = 60.0;

} // namespace

IMPLEMENT_DYNCREATE(CFiguresUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CFiguresUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

GUID CFiguresUnit::GetGUID()
{
    return GUID_FIGURES_UNIT;
}

void CFiguresUnit::OnParameters()
{
    m_arrInstrument = GetParameters().GetInstruments(L"TAGS");
}

/// A wall display has no banner to say it.
CString CFiguresUnit::GetCaptionNote() const
{
    return App().GetFeed().IsPaused() ? L"data paused" : L"";
}

CRect CFiguresUnit::GetTileRect(int nTile) const
{
    const CRect rc = GetContentRect();
    const int nTiles = static_cast<int>(m_arrInstrument.size());
    if (nTile < 0 || nTile >= nTiles)
        return {};
    const int nMost = std::clamp((rc.Width() - GAP) / (TILE_WIDTH + GAP), 1, nTiles);
    const int nLines = (nTiles + nMost - 1) / nMost;
    const int nColumns = (nTiles + nLines - 1) / nLines; // lines as even as can be
    const int nColumn = nTile % nColumns, nLine = nTile / nColumns;
    // The tiles share what the gaps leave; edges come from one division, so that no pixel is lost.
    const auto edge = [](int nFrom, int nRoom, int n, int nCount) {
        return nFrom + GAP + (nRoom - GAP) * n / nCount;
    };
    return {edge(rc.left, rc.Width(), nColumn, nColumns), edge(rc.top, rc.Height(), nLine, nLines),
            edge(rc.left, rc.Width(), nColumn + 1, nColumns) - GAP,
            edge(rc.top, rc.Height(), nLine + 1, nLines) - GAP};
}

void CFiguresUnit::OnShowInstrument(int nInstrument)
{
    m_nSelected = nInstrument;
    Invalidate(FALSE);
}

void CFiguresUnit::SelectAt(CPoint pt)
{
    for (std::size_t i = 0; i < m_arrInstrument.size(); ++i) {
        if (GetTileRect(static_cast<int>(i)).PtInRect(pt))
            Notify(NOTIFY_INSTRUMENT_SELECTED, m_arrInstrument[i]);
    }
}

void CFiguresUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    SelectAt(pt);
    CPaneUnit::OnLButtonDown(nFlags, pt);
}

/// What the context menu is about is selected first.
void CFiguresUnit::OnRButtonDown(UINT nFlags, CPoint pt)
{
    SelectAt(pt);
    CPaneUnit::OnRButtonDown(nFlags, pt);
}

void CFiguresUnit::Draw(CDC& dc, const CRect&)
{
    for (std::size_t i = 0; i < m_arrInstrument.size(); ++i)
        DrawTile(dc, GetTileRect(static_cast<int>(i)), m_arrInstrument[i]);
}

void CFiguresUnit::DrawTile(CDC& dc, const CRect& rc, int nInstrument) const
{
    if (rc.Width() < 20 || rc.Height() < 16)
        return;
    const Instrument& instrument = GetInstrument(nInstrument);
    const AlarmState state = App().GetRecord().GetState(nInstrument);
    const bool bAlarm = state != AlarmState::Normal;
    const COLORREF color = theme::StateColor(state);
    theme::DrawBox(dc, rc, bAlarm ? theme::StateBackground(state) : theme::ZEBRA,
                   nInstrument == m_nSelected ? theme::ACCENT : (bAlarm ? color : theme::LINE), 8);

    CRect rcInner(rc);
    rcInner.DeflateRect(12, 8);
    if (rcInner.Height() >= 88) {
        DrawSpark(dc, CRect(rcInner.left, rcInner.top + 56, rcInner.right, rcInner.bottom), nInstrument);
        rcInner.bottom = rcInner.top + 54;
    }
    const CRect rcName(rcInner.left, rcInner.top, rcInner.right, rcInner.top + 16);
    theme::DrawLine(dc, instrument.pszName, rcName, theme::Font::Small, theme::MUTED);
    const CRect rcValue(rcInner.left, rcName.bottom + 2, rcInner.right,
                        std::max(rcInner.bottom, rcName.bottom + 18));
    const CString strValue = FormatValue(instrument, App().GetRecord().GetValue(nInstrument));
    theme::DrawLine(dc, strValue, rcValue, theme::Font::Large, color);
    CRect rcUnit(rcValue);
    rcUnit.left += theme::TextWidth(dc, strValue, theme::Font::Large) + 6;
    rcUnit.top += 5;
    theme::DrawLine(dc, ShownUnit(instrument), rcUnit, theme::Font::Normal, theme::MUTED);
    theme::DrawDisc(dc, CPoint(rc.right - 14, rcName.CenterPoint().y), 4, bAlarm ? color : theme::GOOD);
}

/// The last minute as a line without axes.
void CFiguresUnit::DrawSpark(CDC& dc, const CRect& rc, int nInstrument) const
{
    CPlantRecord& record = App().GetRecord();
    const Statistics statistics = record.GetStatistics(nInstrument, SPARK_SPAN);
    if (statistics.nSamples < 2)
        return;
    const double dMargin = (statistics.dMax - statistics.dMin) * 0.1 + 1e-9;
    const Axis time = {record.GetTime() - SPARK_SPAN, record.GetTime(), rc.left, rc.right - 1};
    const Axis value = {statistics.dMin - dMargin, statistics.dMax + dMargin, rc.bottom - 1, rc.top};
    std::vector<POINT> arrPoint;
    for (int n = record.FindSample(time.dLow); n < record.GetSampleCount(); ++n) {
        const PlantSample& sample = record.GetSample(n);
        arrPoint.push_back({time.ToPixel(sample.dTime),
                            value.ToPixel(sample.arrValue[static_cast<std::size_t>(nInstrument)])});
    }
    const AlarmState state = record.GetState(nInstrument);
    const theme::CPenScope pen(dc, state == AlarmState::Normal ? theme::ACCENT : theme::StateColor(state), 2);
    dc.Polyline(arrPoint.data(), static_cast<int>(arrPoint.size()));
}
