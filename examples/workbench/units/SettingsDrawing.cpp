// The look of the form, field by field.
#include "units/SettingsField.h"

#include <algorithm>

using Kind = SettingsField::Kind;

namespace {

constexpr int WIDEST_TEXT = 1000; // room for a text that is longer than its box

} // namespace

void CSettingsUnit::Draw(CDC& dc, const CRect&)
{
    for (int n = 0; n < FIELD_COUNT; ++n)
        DrawField(dc, static_cast<Field>(n));
}

void CSettingsUnit::DrawField(CDC& dc, Field field) const
{
    const CRect rc = GetFieldRect(field);
    const bool bFocus = field == m_current && CWnd::GetFocus() == this;
    const SettingsField& info = SettingsField::Of(field);
    if (info.kind == Kind::Text || info.kind == Kind::Choice) {
        const CRect rcLabel(rc.left, rc.top - SettingsField::LABEL_HEIGHT, rc.right, rc.top - 2);
        theme::DrawLine(dc, info.pszLabel, rcLabel, theme::Font::Small, theme::MUTED);
    }
    switch (info.kind) {
    case Kind::Text:
        return DrawText(dc, rc, field, bFocus);
    case Kind::Choice:
        return DrawChoice(dc, rc, bFocus);
    case Kind::Check:
        return DrawCheck(dc, rc, field, bFocus);
    case Kind::Button:
        return DrawButton(dc, rc, field, bFocus);
    }
}

/// A text that is longer than its box is moved so that the caret can be seen.
void CSettingsUnit::DrawText(CDC& dc, const CRect& rc, Field field, bool bFocus) const
{
    theme::DrawBox(dc, rc, theme::PANEL, bFocus ? theme::ACCENT : theme::LINE);
    CRect rcText(rc);
    rcText.DeflateRect(SettingsField::TEXT_MARGIN, 0);
    const CString& strText = m_draft.*TextOf(field);
    if (!bFocus)
        return theme::DrawLine(dc, strText, rcText, theme::Font::Normal, theme::TEXT);
    const int nCaret = theme::TextWidth(dc, strText.Left(m_line.GetCaret()), theme::Font::Normal);
    const int nShift = std::max<int>(nCaret + 2 - rcText.Width(), 0);
    const int nSaved = dc.SaveDC();
    dc.IntersectClipRect(rcText);
    const CRect rcLine(rcText.left - nShift, rcText.top, rcText.right + WIDEST_TEXT, rcText.bottom);
    theme::DrawLine(dc, strText, rcLine, theme::Font::Normal, theme::TEXT);
    dc.FillSolidRect(rcText.left + nCaret - nShift, rc.top + 5, 2, rc.Height() - 10, theme::ACCENT);
    dc.RestoreDC(nSaved);
}

void CSettingsUnit::DrawChoice(CDC& dc, const CRect& rc, bool bFocus) const
{
    theme::DrawBox(dc, rc, theme::PANEL, bFocus ? theme::ACCENT : theme::LINE);
    CRect rcText(rc);
    rcText.DeflateRect(8, 0, 26, 0);
    theme::DrawLine(dc, TIME_SPANS[static_cast<std::size_t>(m_draft.nTimeSpan)].pszName, rcText,
                    theme::Font::Normal, theme::TEXT);
    const CPoint pt(rc.right - 14, rc.CenterPoint().y);
    const theme::CPenScope pen(dc, theme::MUTED, 2);
    const POINT arrow[] = {{pt.x - 5, pt.y - 3}, {pt.x, pt.y + 2}, {pt.x + 5, pt.y - 3}};
    dc.Polyline(arrow, 3);
}

void CSettingsUnit::DrawCheck(CDC& dc, const CRect& rc, Field field, bool bFocus) const
{
    const bool bOn = m_draft.*FlagOf(field);
    const int nTop = rc.CenterPoint().y - 8;
    const CRect rcBox(rc.left, nTop, rc.left + 16, nTop + 16);
    theme::DrawBox(dc, rcBox, bOn ? theme::ACCENT : theme::PANEL, bOn || bFocus ? theme::ACCENT : theme::LINE,
                   4);
    if (bOn) {
        const theme::CPenScope pen(dc, theme::PANEL, 2);
        const POINT tick[] = {
            {rcBox.left + 4, nTop + 8}, {rcBox.left + 7, nTop + 11}, {rcBox.left + 12, nTop + 5}};
        dc.Polyline(tick, 3);
    }
    const CRect rcText(rc.left + 24, rc.top, rc.right, rc.bottom);
    theme::DrawLine(dc, SettingsField::Of(field).pszLabel, rcText, theme::Font::Normal,
                    bFocus ? theme::ACCENT : theme::TEXT);
}

/// "Apply" stands out, and both can be read well, only while there is something to apply.
void CSettingsUnit::DrawButton(CDC& dc, const CRect& rc, Field field, bool bFocus) const
{
    const bool bEdited = IsEdited();
    const bool bStrong = bEdited && field == FIELD_APPLY;
    theme::DrawBox(dc, rc, bStrong ? theme::ACCENT : theme::CAPTION, bFocus ? theme::ACCENT : theme::LINE);
    theme::DrawLine(dc, SettingsField::Of(field).pszLabel, rc, theme::Font::Bold,
                    bStrong   ? theme::PANEL
                    : bEdited ? theme::TEXT
                              : theme::MUTED,
                    DT_CENTER);
}
