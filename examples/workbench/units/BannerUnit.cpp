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
    theme::DrawLine(dc, strTitle, rcText, theme::Font::Bold, theme::ON_HEADER);
    rcText.left += theme::TextWidth(dc, strTitle, theme::Font::Bold) + 24;
    rcText.right = GetLockRect().left - PILL_GAP;
    DrawWatched(dc, rcText);
    CString strDuty;
    strDuty.Format(L"Batch %s   ·   %s   ·   %s", settings.strBatch, settings.strOperator,
                   App().GetFeed().IsPaused() ? L"feed paused" : L"feed running");
    theme::DrawLine(dc, strDuty, rcText, theme::Font::Normal, theme::SOFT_ON_HEADER);

    const bool bLocked = App().IsLayoutLocked();
    theme::DrawPill(dc, bLocked ? L"Lines locked" : L"Lines free", GetLockRect(),
                    bLocked ? theme::HEADER : theme::SOFT_ON_HEADER,
                    bLocked ? theme::SOFT_ON_HEADER : theme::Mix(theme::SOFT_ON_HEADER, theme::HEADER, 0.2));
    const int nAlarms = App().GetRecord().CountAlarms();
    CString strAlarms;
    strAlarms.Format(nAlarms == 1 ? L"%d alarm" : L"%d alarms", nAlarms);
    const COLORREF fill = nAlarms > 0 ? theme::ALARM : theme::GOOD;
    theme::DrawPill(dc, nAlarms > 0 ? strAlarms : CString(L"No alarms"), GetAlarmRect(), theme::PANEL, fill);
}

/// At the right end of the room, which gets smaller by it. Gives way to whoever is on duty.
void CBannerUnit::DrawWatched(CDC& dc, CRect& rcRoom) const
{
    if (m_nWatched < 0)
        return;
    const Instrument& instrument = GetInstrument(m_nWatched);
    const AlarmState state = App().GetRecord().GetState(m_nWatched);
    const CString strText = CString(instrument.pszTag) + L"   " +
                            FormatValueAndUnit(instrument, App().GetRecord().GetValue(m_nWatched));
    const int nWidth = theme::TextWidth(dc, strText, theme::Font::Small) + 24;
    if (rcRoom.Width() < nWidth + 160)
        return;
    const CRect rc(rcRoom.right - nWidth, GetLockRect().top, rcRoom.right, GetLockRect().bottom);
    theme::DrawPill(dc, strText, rc, theme::StateColor(state), theme::StateBackground(state));
    rcRoom.right = rc.left - PILL_GAP;
}
