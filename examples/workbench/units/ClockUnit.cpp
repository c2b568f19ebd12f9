// Face, hands and digits.
#include "units/ClockUnit.h"

#include "Application.h"
#include "ClassTables.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr UINT_PTR TIMER_TICK = 1;
constexpr UINT TICK = 1000; // milliseconds
constexpr int SMALLEST_FACE = 56;
constexpr int DIGITS_HEIGHT = 40;
constexpr int DATE_HEIGHT = 18;

/// A point on a circle; dTurn 0 is at the top, 0.25 at the right.
CPoint OnCircle(CPoint ptCenter, double dRadius, double dTurn)
{
    const double dAngle = dTurn * 2.0 * std::numbers::pi;
    return {ptCenter.x + static_cast<int>(std::lround(dRadius * std::sin(dAngle))),
            ptCenter.y - static_cast<int>(std::lround(dRadius * std::cos(dAngle)))};
}

void DrawHand(CDC& dc, CPoint ptCenter, double dLength, double dTurn, COLORREF color, int nWidth)
{
    theme::DrawStroke(dc, OnCircle(ptCenter, -dLength / 6, dTurn), OnCircle(ptCenter, dLength, dTurn), color,
                      nWidth);
}

void DrawFace(CDC& dc, const CRect& rc, double dTimeOfDay)
{
    const CPoint ptCenter = rc.CenterPoint();
    const int nRadius = std::min<int>(rc.Width(), rc.Height()) / 2 - 2;
    {
        const theme::CPenScope pen(dc, theme::LINE, 2);
        const theme::CBrushScope brush(dc, theme::ZEBRA);
        dc.Ellipse(
            CRect(ptCenter.x - nRadius, ptCenter.y - nRadius, ptCenter.x + nRadius, ptCenter.y + nRadius));
    }
    for (int n = 0; n < 60; n += nRadius >= 60 ? 1 : 5) {
        const bool bHour = n % 5 == 0;
        theme::DrawStroke(dc, OnCircle(ptCenter, nRadius * (bHour ? 0.84 : 0.91), n / 60.0),
                          OnCircle(ptCenter, nRadius * 0.95, n / 60.0), bHour ? theme::TEXT : theme::LINE,
                          bHour && n % 15 == 0 ? 3 : 1);
    }
    DrawHand(dc, ptCenter, nRadius * 0.52, std::fmod(dTimeOfDay / 43200.0, 1.0), theme::TEXT, 4);
    DrawHand(dc, ptCenter, nRadius * 0.76, std::fmod(dTimeOfDay / 3600.0, 1.0), theme::TEXT, 3);
    DrawHand(dc, ptCenter, nRadius * 0.86, std::fmod(dTimeOfDay / 60.0, 1.0), theme::ALARM, 1);
    theme::DrawDisc(dc, ptCenter, 3, theme::ALARM);
}

} // namespace

IMPLEMENT_DYNCREATE(CClockUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CClockUnit, CPaneUnit)
ON_WM_TIMER()
END_MESSAGE_MAP()

GUID CClockUnit::GetGUID()
{
    return GUID_CLOCK_UNIT;
}

BOOL CClockUnit::Create(CWnd* pParent, CBaseUnitInfo* pInfo)
{
    if (!CPaneUnit::Create(pParent, pInfo))
        return FALSE;
    SetTimer(TIMER_TICK, TICK); // ends with the window
    return TRUE;
}

void CClockUnit::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != TIMER_TICK)
        return CPaneUnit::OnTimer(nIDEvent);
    const CRect rc = GetContentRect();
    InvalidateRect(rc, FALSE);
}

void CClockUnit::Draw(CDC& dc, const CRect& rc)
{
    const CWorkTime& workTime = App().GetWorkTime();
    const double dTimeOfDay = workTime.GetTimeOfDay(workTime.GetRunTime());
    CRect rcRoom(rc);
    rcRoom.DeflateRect(theme::PADDING, theme::PADDING);
    const bool bWide = rcRoom.Width() > 2 * rcRoom.Height();
    CRect rcFace(rcRoom), rcText(rcRoom);
    if (bWide) {
        rcFace.right = rcFace.left + rcRoom.Height();
        rcText.left = rcFace.right + theme::PADDING;
    } else {
        rcFace.bottom -= DIGITS_HEIGHT + DATE_HEIGHT;
        rcText.top = rcFace.bottom;
    }
    if (std::min<int>(rcFace.Width(), rcFace.Height()) >= SMALLEST_FACE)
        DrawFace(dc, rcFace, dTimeOfDay);
    else
        rcText = rcRoom;

    const int nMiddle = rcText.CenterPoint().y;
    const CRect rcDigits(rcText.left, nMiddle - (DIGITS_HEIGHT + DATE_HEIGHT) / 2 + 2, rcText.right,
                         nMiddle + (DIGITS_HEIGHT - DATE_HEIGHT) / 2 + 2);
    const CString strTime = FormatTimeOfDay(dTimeOfDay, true);
    theme::Font font = theme::Font::Small;
    for (const theme::Font larger : {theme::Font::Bold, theme::Font::Large, theme::Font::Huge})
        font = theme::TextWidth(dc, strTime, larger) <= rcDigits.Width() ? larger : font;
    theme::DrawLine(dc, strTime, rcDigits, font, theme::TEXT, DT_CENTER);
    const CRect rcDate(rcText.left, rcDigits.bottom, rcText.right, rcDigits.bottom + DATE_HEIGHT);
    theme::DrawLine(dc, workTime.GetDate(), rcDate, theme::Font::Small, theme::MUTED, DT_CENTER);
}
