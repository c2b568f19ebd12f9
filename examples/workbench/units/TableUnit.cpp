// Rows, columns, selection.
#include "units/TableUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

enum Column
{
    COLUMN_STATE,
    COLUMN_TAG,
    COLUMN_NAME,
    COLUMN_AREA,
    COLUMN_VALUE,
    COLUMN_UNIT,
    COLUMN_RANGE,
    COLUMN_LOW,
    COLUMN_HIGH,
    COLUMN_COUNT
};

struct ColumnInfo
{
    const wchar_t* pszTitle;
    int nWidth;    // names and ranges share what is left over
    int nPriority; // with little room the highest numbers go first; 0 stays
    UINT nAlign;
};

constexpr std::array<ColumnInfo, COLUMN_COUNT> COLUMNS = {{
    {L"", 26, 0, DT_LEFT},
    {L"Tag", 66, 0, DT_LEFT},
    {L"Instrument", 148, 2, DT_LEFT},
    {L"Area", 84, 4, DT_LEFT},
    {L"Value", 68, 0, DT_RIGHT},
    {L"Unit", 58, 1, DT_LEFT},
    {L"Range", 110, 5, DT_LEFT},
    {L"Low", 58, 3, DT_RIGHT},
    {L"High", 58, 3, DT_RIGHT},
}};

bool IsShown(int nColumn, int nWorstPriority)
{
    return COLUMNS[static_cast<std::size_t>(nColumn)].nPriority <= nWorstPriority;
}

int WidthOfColumns(int nWorstPriority)
{
    int nWidth = 0;
    for (int n = 0; n < COLUMN_COUNT; ++n)
        nWidth += IsShown(n, nWorstPriority) ? COLUMNS[static_cast<std::size_t>(n)].nWidth : 0;
    return nWidth;
}

bool IsGrowing(int nColumn)
{
    return nColumn == COLUMN_NAME || nColumn == COLUMN_RANGE;
}

CString FormatLimit(const Instrument& instrument, double dLimit)
{
    return std::isfinite(dLimit) ? FormatValue(instrument, dLimit) : CString(L"–");
}

/// A strip that shows where in its range the value stands.
void DrawRangeBar(CDC& dc, const CRect& rc, const Instrument& instrument, double dValue, COLORREF color)
{
    CRect rcBar(rc.left, rc.CenterPoint().y - 3, rc.right - 12, rc.CenterPoint().y + 3);
    theme::DrawBox(dc, rcBar, theme::GRID, theme::GRID, 6);
    const double dPart =
        std::clamp((dValue - instrument.dLow) / (instrument.dHigh - instrument.dLow), 0.0, 1.0);
    rcBar.right = rcBar.left + std::max(static_cast<int>(rcBar.Width() * dPart), 6);
    theme::DrawBox(dc, rcBar, color, color, 6);
}

} // namespace

IMPLEMENT_DYNCREATE(CTableUnit, CListUnit)

BEGIN_MESSAGE_MAP(CTableUnit, CListUnit)
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

GUID CTableUnit::GetGUID()
{
    return GUID_TABLE_UNIT;
}

void CTableUnit::OnParameters()
{
    m_bAlarmsOnly = GetParameters().GetText(L"SHOW") == L"ALARMS";
    const std::vector<int> arrInstrument = GetParameters().GetInstruments(L"TAGS");
    if (!arrInstrument.empty())
        m_nSelected = arrInstrument.front();
    ListRows();
}

CString CTableUnit::GetCaptionNote() const
{
    const int nAlarms = App().GetRecord().CountAlarms();
    CString str;
    if (m_bAlarmsOnly)
        str.Format(L"%d of %d instruments", nAlarms, INSTRUMENT_COUNT);
    else
        str.Format(L"%d instruments, %d in alarm", INSTRUMENT_COUNT, nAlarms);
    return str;
}

void CTableUnit::ListRows()
{
    m_arrInstrument.clear();
    for (int n = 0; n < INSTRUMENT_COUNT; ++n) {
        if (!m_bAlarmsOnly || App().GetRecord().GetState(n) != AlarmState::Normal)
            m_arrInstrument.push_back(n);
    }
    PlaceRows(static_cast<int>(m_arrInstrument.size()), HEADER_HEIGHT);
}

int CTableUnit::RowOf(int nInstrument) const
{
    const auto it = std::find(m_arrInstrument.begin(), m_arrInstrument.end(), nInstrument);
    return it == m_arrInstrument.end() ? -1 : static_cast<int>(it - m_arrInstrument.begin());
}

CRect CTableUnit::GetInstrumentRect(int nInstrument) const
{
    const int nRow = RowOf(nInstrument);
    return nRow < 0 ? CRect() : m_rows.GetRowRect(nRow);
}

void CTableUnit::OnNewData()
{
    if (m_bAlarmsOnly)
        ListRows();
    Invalidate(FALSE); // the caption counts alarms
}

/// The frame tells all units what is selected, so this must not tell the frame.
void CTableUnit::OnShowInstrument(int nInstrument)
{
    m_nSelected = nInstrument;
    m_rows.MakeVisible(RowOf(nInstrument));
    Invalidate(FALSE);
}

void CTableUnit::Select(int nInstrument)
{
    if (nInstrument == m_nSelected)
        return;
    OnShowInstrument(nInstrument);
    Notify(NOTIFY_INSTRUMENT_SELECTED, nInstrument);
}

void CTableUnit::SelectRow(int nRow)
{
    if (nRow >= 0)
        Select(m_arrInstrument[static_cast<std::size_t>(nRow)]);
}

void CTableUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    SelectRow(m_rows.HitTest(pt));
    CListUnit::OnLButtonDown(nFlags, pt);
}

/// What the context menu is about is selected first.
void CTableUnit::OnRButtonDown(UINT nFlags, CPoint pt)
{
    SelectRow(m_rows.HitTest(pt));
    CListUnit::OnRButtonDown(nFlags, pt);
}

void CTableUnit::OnLButtonDblClk(UINT nFlags, CPoint pt)
{
    if (m_rows.HitTest(pt) >= 0)
        OpenBaseFrame(L"Trends");
    else
        CListUnit::OnLButtonDblClk(nFlags, pt);
}

void CTableUnit::Draw(CDC& dc, const CRect& rc)
{
    DrawHeader(dc, CRect(rc.left, rc.top, rc.right, rc.top + HEADER_HEIGHT));
    dc.SaveDC();
    const CRect rcRows(rc.left, rc.top + HEADER_HEIGHT, rc.right, rc.bottom);
    dc.IntersectClipRect(rcRows);
    for (int nRow = m_rows.GetFirst(); nRow < m_rows.GetEnd(); ++nRow)
        DrawRow(dc, nRow);
    if (m_arrInstrument.empty()) {
        const CRect rcText(rcRows.left, rcRows.top, rcRows.right, rcRows.top + 2 * theme::ROW_HEIGHT);
        theme::DrawLine(dc, L"Nothing is in alarm", rcText, theme::Font::Normal, theme::MUTED, DT_CENTER);
    }
    m_rows.DrawThumb(dc);
    dc.RestoreDC(-1);
}

/// Columns from left to right. Those that matter least leave a table that is too narrow for all.
std::vector<CTableUnit::Cell> CTableUnit::PlaceCells(const CRect& rcRow)
{
    const int nRoom = rcRow.Width() - 12; // keeps clear of the thumb
    int nWorst = 5;
    while (nWorst > 0 && WidthOfColumns(nWorst) > nRoom)
        --nWorst;
    int nSpare = std::max(nRoom - WidthOfColumns(nWorst), 0);
    if (IsShown(COLUMN_NAME, nWorst) && IsShown(COLUMN_RANGE, nWorst))
        nSpare /= 2;
    std::vector<Cell> arrCell;
    int x = rcRow.left;
    for (int n = 0; n < COLUMN_COUNT; ++n) {
        if (!IsShown(n, nWorst))
            continue;
        const int nWidth = COLUMNS[static_cast<std::size_t>(n)].nWidth + (IsGrowing(n) ? nSpare : 0);
        arrCell.push_back({n, CRect(x, rcRow.top, x + nWidth, rcRow.bottom)});
        x += nWidth;
    }
    return arrCell;
}

void CTableUnit::DrawHeader(CDC& dc, const CRect& rc) const
{
    dc.FillSolidRect(rc.left, rc.bottom - 1, rc.Width(), 1, theme::LINE);
    for (const Cell& cell : PlaceCells(rc)) {
        const ColumnInfo& column = COLUMNS[static_cast<std::size_t>(cell.nColumn)];
        CRect rcText(cell.rc);
        rcText.right -= 8;
        theme::DrawLine(dc, column.pszTitle, rcText, theme::Font::Small, theme::MUTED, column.nAlign);
    }
}

void CTableUnit::DrawRow(CDC& dc, int nRow) const
{
    const CRect rc = m_rows.GetRowRect(nRow);
    const int nInstrument = m_arrInstrument[static_cast<std::size_t>(nRow)];
    if (nInstrument == m_nSelected)
        dc.FillSolidRect(rc, theme::SELECTION);
    else if (nRow % 2 == 1)
        dc.FillSolidRect(rc, theme::ZEBRA);
    for (const Cell& cell : PlaceCells(rc))
        DrawCell(dc, cell, nInstrument);
    if (nInstrument == m_nSelected)
        dc.FillSolidRect(rc.left, rc.top, 3, rc.Height(), theme::ACCENT);
}

void CTableUnit::DrawCell(CDC& dc, const Cell& cell, int nInstrument) const
{
    const Instrument& instrument = GetInstrument(nInstrument);
    const AlarmState state = App().GetRecord().GetState(nInstrument);
    const double dValue = App().GetRecord().GetValue(nInstrument);
    const COLORREF color = theme::StateColor(state);
    const bool bAlarm = state != AlarmState::Normal;
    CRect rc(cell.rc);
    rc.right -= 8;
    switch (cell.nColumn) {
    case COLUMN_STATE:
        return theme::DrawDisc(dc, CPoint(cell.rc.left + 14, rc.CenterPoint().y), 4,
                               bAlarm ? color : theme::GOOD);
    case COLUMN_TAG:
        return theme::DrawLine(dc, instrument.pszTag, rc, theme::Font::Fixed, theme::TEXT);
    case COLUMN_NAME:
        return theme::DrawLine(dc, instrument.pszName, rc, theme::Font::Normal, theme::TEXT);
    case COLUMN_AREA:
        return theme::DrawLine(dc, instrument.pszArea, rc, theme::Font::Normal, theme::MUTED);
    case COLUMN_VALUE:
        return theme::DrawLine(dc, FormatValue(instrument, dValue), rc,
                               bAlarm ? theme::Font::Bold : theme::Font::Normal, color, DT_RIGHT);
    case COLUMN_UNIT:
        return theme::DrawLine(dc, ShownUnit(instrument), rc, theme::Font::Small, theme::MUTED);
    case COLUMN_RANGE:
        return DrawRangeBar(dc, rc, instrument, dValue, bAlarm ? color : theme::ACCENT);
    default:
        break;
    }
    const bool bLow = cell.nColumn == COLUMN_LOW;
    theme::DrawLine(dc, FormatLimit(instrument, bLow ? instrument.dAlarmLow : instrument.dAlarmHigh), rc,
                    theme::Font::Normal, theme::MUTED, DT_RIGHT);
}
