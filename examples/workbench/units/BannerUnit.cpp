// The banner.
#include "units/BannerUnit.h"

#include "Application.h"
#include "ClassTables.h"

IMPLEMENT_DYNCREATE(CBannerUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CBannerUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

GUID CBannerUnit::GetGUID()
{
    return GUID_BANNER_UNIT;
}

CRect CBannerUnit::GetAlarmRect() const
{
    const CRect rc = GetContentRect();
    const int nMiddle = rc.CenterPoint().y;
    return {rc.right - 122, nMiddle - 11, rc.right - 14, nMiddle + 11};
}

void CBannerUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    CPaneUnit::OnLButtonDown(nFlags, pt);
    // The last thing done here: another frame comes to the front, and this unit may be gone afterwards.
    if (GetAlarmRect().PtInRect(pt))
        OpenBaseFrame(L"Alarms");
}

void CBannerUnit::Draw(CDC& dc, const CRect& rc)
{
    const Settings& settings = App().GetSettings();
    CRect rcText(rc);
    rcText.DeflateRect(16, 0, 0, 0);
    const CString strTitle = GetCaption();
    theme::DrawLine(dc, strTitle, rcText, theme::Font::Bold, theme::ON_HEADER);
    rcText.left += theme::TextWidth(dc, strTitle, theme::Font::Bold) + 24;
    rcText.right = GetAlarmRect().left - 16;
    CString strDuty;
    strDuty.Format(L"Batch %s   ·   %s   ·   %s", settings.strBatch, settings.strOperator,
                   App().GetFeed().IsPaused() ? L"feed paused" : L"feed running");
    theme::DrawLine(dc, strDuty, rcText, theme::Font::Normal, theme::SOFT_ON_HEADER);

    const int nAlarms = App().GetRecord().CountAlarms();
    CString strAlarms;
    strAlarms.Format(nAlarms == 1 ? L"%d alarm" : L"%d alarms", nAlarms);
    const COLORREF fill = nAlarms > 0 ? theme::ALARM : theme::GOOD;
    theme::DrawPill(dc, nAlarms > 0 ? strAlarms : CString(L"No alarms"), GetAlarmRect(), theme::PANEL, fill);
}
