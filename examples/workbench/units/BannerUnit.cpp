// The banner.
#include "units/BannerUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"
#include "MainFrame.h"

namespace {

constexpr int PILL_WIDTH = 108;
constexpr int PILL_HEIGHT = 22;
constexpr int PILL_GAP = 8;
constexpr int WIDTH_FOR_DUTY = 60;  // less shows nothing that can be read
constexpr int WIDTH_FOR_LOCK = 420; // less belongs to the title and the alarms

} // namespace

IMPLEMENT_DYNCREATE(CBannerUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CBannerUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

GUID CBannerUnit::GetGUID()
{
    return GUID_BANNER_UNIT;
}

LRESULT CBannerUnit::ProcessCommand(UINT nCmd, LPARAM lParam)
{
    if (nCmd != UNIT_CMD_WATCH)
        return CPaneUnit::ProcessCommand(nCmd, lParam);
    m_nWatched = static_cast<int>(lParam);
    Invalidate(FALSE);
    return 1;
}

CRect CBannerUnit::GetPillRect(int nFromRight) const
{
    const CRect rc = GetContentRect();
    if (nFromRight > 0 && rc.Width() < WIDTH_FOR_LOCK)
        return {};
    const int nMiddle = rc.CenterPoint().y;
    const int nRight = rc.right - 14 - nFromRight * (PILL_WIDTH + PILL_GAP);
    return {nRight - PILL_WIDTH, nMiddle - PILL_HEIGHT / 2, nRight, nMiddle + PILL_HEIGHT / 2};
}

void CBannerUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    CPaneUnit::OnLButtonDown(nFlags, pt);
    // The last thing done here: another frame comes to the front, and this unit may be gone afterwards.
    if (GetAlarmRect().PtInRect(pt))
        OpenBaseFrame(L"Alarms");
    else if (GetLockRect().PtInRect(pt))
        App().GetMainFrame()->SendMessage(WM_COMMAND, ID_VIEW_LOCK);
}

void CBannerUnit::Draw(CDC& dc, const CRect& rc)
{
    const Settings& settings = App().GetSettings();
    CRect rcText(rc);
    rcText.DeflateRect(16, 0, 0, 0);
    const CString strTitle = GetCaption();
    rcText.right = (GetLockRect().IsRectEmpty() ? GetAlarmRect() : GetLockRect()).left - PILL_GAP;
    theme::DrawLine(dc, strTitle, rcText, theme::Font::Bold, theme::ON_HEADER);
    rcText.left += theme::TextWidth(dc, strTitle, theme::Font::Bold) + 24;
    if (App().GetFeed().IsPaused()) // old values must not be taken for new ones
        DrawNote(dc, rcText, L"Data paused", theme::PANEL, theme::WARNING);
    if (m_nWatched >= 0)
        DrawWatched(dc, rcText);
    const CString strDuty = L"Batch " + settings.strBatch + L"   ·   " + settings.strOperator;
    if (rcText.Width() >= WIDTH_FOR_DUTY)
        theme::DrawLine(dc, strDuty, rcText, theme::Font::Normal, theme::SOFT_ON_HEADER);

    const bool bLocked = App().IsLayoutLocked();
    theme::DrawPill(dc, bLocked ? L"Layout locked" : L"Layout unlocked", GetLockRect(),
                    bLocked ? theme::HEADER : theme::SOFT_ON_HEADER,
                    bLocked ? theme::SOFT_ON_HEADER : theme::Mix(theme::SOFT_ON_HEADER, theme::HEADER, 0.2));
    const int nAlarms = App().GetRecord().CountAlarms();
    CString strAlarms;
    strAlarms.Format(nAlarms == 1 ? L"%d alarm" : L"%d alarms", nAlarms);
    const COLORREF fill = nAlarms > 0 ? theme::ALARM : theme::GOOD;
    theme::DrawPill(dc, nAlarms > 0 ? strAlarms : CString(L"No alarms"), GetAlarmRect(), theme::PANEL, fill);
}

void CBannerUnit::DrawWatched(CDC& dc, CRect& rcRoom) const
{
    const Instrument& instrument = GetInstrument(m_nWatched);
    const AlarmState state = App().GetRecord().GetState(m_nWatched);
    const CString strText = CString(instrument.pszTag) + L"   " +
                            FormatValueAndUnit(instrument, App().GetRecord().GetValue(m_nWatched));
    DrawNote(dc, rcRoom, strText, theme::StateColor(state), theme::StateBackground(state));
}

/// At the right end of the room, which gets smaller by it. Comes before who is on duty.
void CBannerUnit::DrawNote(CDC& dc, CRect& rcRoom, const CString& strText, COLORREF text, COLORREF fill)
{
    const int nWidth = theme::TextWidth(dc, strText, theme::Font::Small) + 24;
    if (rcRoom.Width() < nWidth)
        return;
    const int nTop = rcRoom.CenterPoint().y - PILL_HEIGHT / 2;
    const CRect rc(rcRoom.right - nWidth, nTop, rcRoom.right, nTop + PILL_HEIGHT);
    theme::DrawPill(dc, strText, rc, text, fill);
    rcRoom.right = rc.left - PILL_GAP;
}
