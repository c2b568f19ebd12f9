// The card of one instrument.
#include "units/DetailUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "units/ChartScale.h"

#include <algorithm>
#include <cmath>

namespace {

struct Fact
{
    const wchar_t* pszName;
    CString strValue;
};

const wchar_t* StateName(AlarmState state)
{
    return state == AlarmState::Normal ? L"Normal" : state == AlarmState::High ? L"High alarm" : L"Low alarm";
}

} // namespace

IMPLEMENT_DYNCREATE(CDetailUnit, CPaneUnit)

GUID CDetailUnit::GetGUID()
{
    return GUID_DETAIL_UNIT;
}

void CDetailUnit::OnParameters()
{
    const std::vector<int> arrInstrument = GetParameters().GetInstruments(L"TAGS");
    if (!arrInstrument.empty())
        m_nInstrument = arrInstrument.front();
}

CString CDetailUnit::GetCaptionNote() const
{
    return GetInstrument(m_nInstrument).pszTag;
}

void CDetailUnit::OnShowInstrument(int nInstrument)
{
    m_nInstrument = nInstrument;
    Invalidate(FALSE);
}

void CDetailUnit::Draw(CDC& dc, const CRect& rc)
{
    const Instrument& instrument = GetInstrument(m_nInstrument);
    const AlarmState state = App().GetRecord().GetState(m_nInstrument);
    CRect rcRoom(rc);
    rcRoom.DeflateRect(16, 12);
    const CRect rcName(rcRoom.left, rcRoom.top, rcRoom.right, rcRoom.top + 20);
    theme::DrawLine(dc, instrument.pszName, rcName, theme::Font::Bold, theme::TEXT);
    const CRect rcPill(rcRoom.right - 88, rcRoom.top, rcRoom.right, rcRoom.top + 19);
    const COLORREF color = state == AlarmState::Normal ? theme::GOOD : theme::StateColor(state);
    // Gives way to the name: the value's colour and the gauge tell the state too.
    if (rcName.left + theme::TextWidth(dc, instrument.pszName, theme::Font::Bold) + 8 <= rcPill.left)
        theme::DrawPill(dc, StateName(state), rcPill, color, theme::Mix(color, theme::PANEL, 0.13));

    const CRect rcValue(rcRoom.left, rcName.bottom + 2, rcRoom.right, rcName.bottom + 46);
    const CString strValue = FormatValue(instrument, App().GetRecord().GetValue(m_nInstrument));
    theme::DrawLine(dc, strValue, rcValue, theme::Font::Huge, theme::StateColor(state));
    CRect rcUnit(rcValue);
    rcUnit.left += theme::TextWidth(dc, strValue, theme::Font::Huge) + 8;
    rcUnit.top += 12;
    theme::DrawLine(dc, ShownUnit(instrument), rcUnit, theme::Font::Normal, theme::MUTED);

    DrawGauge(dc, CRect(rcRoom.left, rcValue.bottom + 6, rcRoom.right, rcValue.bottom + 42));
    DrawFacts(dc, CRect(rcRoom.left, rcValue.bottom + 54, rcRoom.right, rcRoom.bottom));
}

/// The measuring range as a bar: red beyond the limits, a mark where the value stands.
void CDetailUnit::DrawGauge(CDC& dc, const CRect& rc) const
{
    if (rc.Width() < 40)
        return;
    const Instrument& instrument = GetInstrument(m_nInstrument);
    const CRect rcBar(rc.left, rc.top + 8, rc.right, rc.top + 18);
    const Axis axis = {instrument.dLow, instrument.dHigh, rcBar.left, rcBar.right};
    dc.FillSolidRect(rcBar, theme::Mix(theme::GOOD, theme::PANEL, 0.25));
    const COLORREF beyond = theme::Mix(theme::ALARM, theme::PANEL, 0.35);
    if (std::isfinite(instrument.dAlarmLow))
        dc.FillSolidRect(CRect(rcBar.left, rcBar.top, axis.ToPixel(instrument.dAlarmLow), rcBar.bottom),
                         beyond);
    if (std::isfinite(instrument.dAlarmHigh))
        dc.FillSolidRect(CRect(axis.ToPixel(instrument.dAlarmHigh), rcBar.top, rcBar.right, rcBar.bottom),
                         beyond);
    const int x = std::clamp<int>(axis.ToPixel(App().GetRecord().GetValue(m_nInstrument)), rcBar.left + 2,
                                  rcBar.right - 2);
    dc.FillSolidRect(x - 2, rcBar.top - 5, 4, rcBar.Height() + 10, theme::TEXT);
    const CRect rcEnds(rc.left, rcBar.bottom + 5, rc.right, rcBar.bottom + 19);
    theme::DrawLine(dc, FormatValue(instrument, instrument.dLow), rcEnds, theme::Font::Small, theme::MUTED);
    theme::DrawLine(dc, FormatValue(instrument, instrument.dHigh), rcEnds, theme::Font::Small, theme::MUTED,
                    DT_RIGHT);
}

void CDetailUnit::DrawFacts(CDC& dc, const CRect& rc) const
{
    const Instrument& instrument = GetInstrument(m_nInstrument);
    const Statistics statistics =
        App().GetRecord().GetStatistics(m_nInstrument, App().GetSettings().GetTimeSpan());
    const auto limit = [&instrument](double d) {
        return std::isfinite(d) ? FormatValueAndUnit(instrument, d) : CString(L"none");
    };
    const Fact facts[] = {
        {L"Smallest", FormatValueAndUnit(instrument, statistics.dMin)},
        {L"Mean", FormatValueAndUnit(instrument, statistics.dMean)},
        {L"Largest", FormatValueAndUnit(instrument, statistics.dMax)},
        {L"Low limit", limit(instrument.dAlarmLow)},
        {L"High limit", limit(instrument.dAlarmHigh)},
        {L"Area", instrument.pszArea},
    };
    CRect rcRow(rc.left, rc.top, rc.right, rc.top + theme::ROW_HEIGHT);
    for (const Fact& fact : facts) {
        if (rcRow.bottom > rc.bottom + 1)
            return; // none that is cut in two
        theme::DrawLine(dc, fact.pszName, rcRow, theme::Font::Normal, theme::MUTED);
        theme::DrawLine(dc, fact.strValue, CRect(rcRow.left + 84, rcRow.top, rcRow.right, rcRow.bottom),
                        theme::Font::Normal, theme::TEXT, DT_RIGHT);
        dc.FillSolidRect(rcRow.left, rcRow.bottom - 1, rcRow.Width(), 1, theme::GRID);
        rcRow.OffsetRect(0, theme::ROW_HEIGHT);
    }
}
