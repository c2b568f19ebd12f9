// Samples, row by row.
#include "units/HistoryUnit.h"

#include "Application.h"
#include "ClassTables.h"

#include <cmath>

namespace {

constexpr int TIME_WIDTH = 84;
constexpr int VALUE_WIDTH = 96;

struct Columns
{
    CRect rcTime;
    CRect rcValue;
    CRect rcChange;
};

Columns PlaceColumns(const CRect& rc)
{
    const int x = rc.left + theme::PADDING;
    return {{x, rc.top, x + TIME_WIDTH, rc.bottom},
            {x + TIME_WIDTH, rc.top, x + TIME_WIDTH + VALUE_WIDTH, rc.bottom},
            {x + TIME_WIDTH + VALUE_WIDTH, rc.top, x + TIME_WIDTH + 2 * VALUE_WIDTH, rc.bottom}};
}

} // namespace

IMPLEMENT_DYNCREATE(CHistoryUnit, CListUnit)

GUID CHistoryUnit::GetGUID()
{
    return GUID_HISTORY_UNIT;
}

void CHistoryUnit::OnParameters()
{
    const std::vector<int> arrInstrument = GetParameters().GetInstruments(L"TAGS");
    if (!arrInstrument.empty())
        m_nInstrument = arrInstrument.front();
    ListRows();
}

CString CHistoryUnit::GetCaption() const
{
    return CString(L"History: ") + GetInstrument(m_nInstrument).pszName;
}

CString CHistoryUnit::GetCaptionNote() const
{
    CString str;
    str.Format(L"%d samples", App().GetRecord().GetSampleCount());
    return str;
}

void CHistoryUnit::OnShowInstrument(int nInstrument)
{
    m_nInstrument = nInstrument;
    Invalidate(FALSE);
}

/// The same samples stay in sight when new ones come in above them, unless the newest are being watched.
void CHistoryUnit::ListRows()
{
    const CPlantRecord& record = App().GetRecord();
    PlaceRows(record.GetSampleCount(), HEADER_HEIGHT);
    const double dNewer = record.GetTime() - m_dNewest;
    m_dNewest = record.GetTime();
    if (m_rows.GetFirst() > 0)
        m_rows.ScrollBy(static_cast<int>(std::lround(dNewer / CPlantFeed::STEP)));
}

void CHistoryUnit::OnNewData()
{
    ListRows();
    Invalidate(FALSE); // the caption counts samples
}

void CHistoryUnit::Draw(CDC& dc, const CRect& rc)
{
    DrawHeader(dc, CRect(rc.left, rc.top, rc.right, rc.top + HEADER_HEIGHT));
    dc.IntersectClipRect(CRect(rc.left, rc.top + HEADER_HEIGHT, rc.right, rc.bottom));
    for (int nRow = m_rows.GetFirst(); nRow < m_rows.GetEnd(); ++nRow)
        DrawRow(dc, nRow);
    m_rows.DrawThumb(dc);
}

void CHistoryUnit::DrawHeader(CDC& dc, const CRect& rc) const
{
    const Columns columns = PlaceColumns(rc);
    dc.FillSolidRect(rc.left, rc.bottom - 1, rc.Width(), 1, theme::LINE);
    const CString strValue = CString(L"Value, ") + ShownUnit(GetInstrument(m_nInstrument));
    theme::DrawLine(dc, L"Time", columns.rcTime, theme::Font::Small, theme::MUTED);
    theme::DrawLine(dc, strValue, columns.rcValue, theme::Font::Small, theme::MUTED, DT_RIGHT);
    theme::DrawLine(dc, L"Change", columns.rcChange, theme::Font::Small, theme::MUTED, DT_RIGHT);
}

void CHistoryUnit::DrawRow(CDC& dc, int nRow) const
{
    const CPlantRecord& record = App().GetRecord();
    const int nSample = record.GetSampleCount() - 1 - nRow;
    const auto shown = [&](int n) {
        return ShownValue(GetInstrument(m_nInstrument),
                          record.GetSample(n).arrValue[static_cast<std::size_t>(m_nInstrument)]);
    };
    const CRect rc = m_rows.GetRowRect(nRow);
    // Stripes follow the samples, not the rows, so that they stand still while samples come in.
    if (nSample % 2 == 1)
        dc.FillSolidRect(rc, theme::ZEBRA);
    const Columns columns = PlaceColumns(rc);
    const double dTime = record.GetSample(nSample).dTime;
    theme::DrawLine(dc, FormatTimeOfDay(App().GetWorkTime().GetTimeOfDay(dTime), true), columns.rcTime,
                    theme::Font::Fixed, theme::MUTED);
    CString strValue, strChange;
    strValue.Format(L"%.2f", shown(nSample));
    theme::DrawLine(dc, strValue, columns.rcValue, theme::Font::Normal, theme::TEXT, DT_RIGHT);
    if (nSample == 0)
        return;
    strChange.Format(L"%+.2f", shown(nSample) - shown(nSample - 1));
    theme::DrawLine(dc, strChange, columns.rcChange, theme::Font::Normal, theme::MUTED, DT_RIGHT);
}
