// Showing journal entries.
#include "units/LogUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <platform/window/Menu.h>

namespace {

// The text matters most: a narrow log gives up first the source, which most texts name too, and then the
// word for the severity, of which a dot in its colour stays.
constexpr int WIDTH_FOR_SEVERITY = 360;
constexpr int WIDTH_FOR_SOURCE = 500;

} // namespace

IMPLEMENT_DYNCREATE(CLogUnit, CListUnit)

BEGIN_MESSAGE_MAP(CLogUnit, CListUnit)
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

GUID CLogUnit::GetGUID()
{
    return GUID_LOG_UNIT;
}

CString CLogUnit::GetCaptionNote() const
{
    const int nOpen = App().GetRecord().GetJournal().CountUnacknowledged();
    if (nOpen == 0)
        return L"all acknowledged";
    CString str;
    str.Format(L"%d to acknowledge (Enter)", nOpen);
    return str;
}

/// The same entries stay in sight when new ones come in above them, unless the newest are being watched.
void CLogUnit::ListRows()
{
    const int nEntries = App().GetRecord().GetJournal().GetCount();
    const int nNew = nEntries - m_nEntries;
    m_nEntries = nEntries;
    PlaceRows(nEntries, 0);
    if (nNew > 0 && m_rows.GetFirst() > 0)
        m_rows.ScrollBy(nNew);
}

void CLogUnit::OnNewData()
{
    if (m_nEntries != App().GetRecord().GetJournal().GetCount())
        OnJournalChanged();
}

void CLogUnit::OnJournalChanged()
{
    ListRows();
    Invalidate(FALSE);
}

void CLogUnit::FillMenu(CMenu& menu)
{
    menu.AppendMenu(MF_STRING, ID_PLANT_ACKNOWLEDGE, L"&Acknowledge alarms\tEnter");
}

void CLogUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    // What acknowledging means is the frame's business, not the list's.
    if (nChar == VK_RETURN)
        ProcessHelperMessage(HELPER_MSG_ACKNOWLEDGE, 0, 0);
    else
        CListUnit::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CLogUnit::Draw(CDC& dc, const CRect&)
{
    for (int nRow = m_rows.GetFirst(); nRow < m_rows.GetEnd(); ++nRow)
        DrawEntry(dc, nRow);
    m_rows.DrawThumb(dc);
}

void CLogUnit::DrawEntry(CDC& dc, int nRow) const
{
    const JournalEntry& entry = App().GetRecord().GetJournal().GetByAge(nRow);
    const CRect rc = m_rows.GetRowRect(nRow);
    if (!entry.bAcknowledged)
        dc.FillSolidRect(rc, theme::ALARM_SOFT);
    else if (nRow % 2 == 1)
        dc.FillSolidRect(rc, theme::ZEBRA);

    const CString strTime = FormatTimeOfDay(App().GetWorkTime().GetTimeOfDay(entry.dTime), true);
    int x = rc.left + theme::PADDING;
    theme::DrawLine(dc, strTime, CRect(x, rc.top, rc.right, rc.bottom), theme::Font::Fixed, theme::MUTED);
    x += 68;
    if (rc.Width() >= WIDTH_FOR_SEVERITY) {
        const CRect rcPill(x, rc.top + 3, x + 62, rc.bottom - 3);
        theme::DrawPill(dc, GetSeverityName(entry.severity), rcPill, theme::SeverityColor(entry.severity),
                        theme::SeverityBackground(entry.severity));
        x += 72;
    } else {
        theme::DrawDisc(dc, CPoint(x + 2, rc.CenterPoint().y), 4, theme::SeverityColor(entry.severity));
        x += 12;
    }
    if (rc.Width() >= WIDTH_FOR_SOURCE) {
        theme::DrawLine(dc, entry.strSource, CRect(x, rc.top, x + 72, rc.bottom), theme::Font::Fixed,
                        theme::TEXT);
        x += 76;
    }
    const CRect rcText(x, rc.top, rc.right - 10, rc.bottom);
    theme::DrawLine(dc, entry.strText, rcText, entry.bAcknowledged ? theme::Font::Normal : theme::Font::Bold,
                    theme::TEXT);
}
