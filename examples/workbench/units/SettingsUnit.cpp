// The form: a list of fields from top to bottom, each drawn and used by its kind.
#include "units/SettingsUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <algorithm>
#include <array>

namespace {

enum class Kind
{
    Text,
    Choice,
    Check,
    Button
};

struct FieldInfo
{
    Kind kind;
    const wchar_t* pszLabel;
    int y; // from the top of the form
};

constexpr std::array<FieldInfo, CSettingsUnit::FIELD_COUNT> FIELDS = {{
    {Kind::Text, L"Operator on duty", 14},
    {Kind::Text, L"Batch", 68},
    {Kind::Choice, L"Time span of charts", 122},
    {Kind::Check, L"Grid lines", 184},
    {Kind::Check, L"Alarm limits", 210},
    {Kind::Check, L"Fill below single lines", 236},
    {Kind::Button, L"Apply", 274},
}};

constexpr int LABEL_HEIGHT = 18;
constexpr int BOX_HEIGHT = 26;
constexpr int CHECK_HEIGHT = 22;
constexpr int LONGEST_TEXT = 24;

const FieldInfo& InfoOf(CSettingsUnit::Field field)
{
    return FIELDS[static_cast<std::size_t>(field)];
}

} // namespace

IMPLEMENT_DYNCREATE(CSettingsUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CSettingsUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
ON_WM_KEYDOWN()
ON_WM_CHAR()
END_MESSAGE_MAP()

GUID CSettingsUnit::GetGUID()
{
    return GUID_SETTINGS_UNIT;
}

BOOL CSettingsUnit::Init(const wchar_t* pszParam)
{
    m_draft = App().GetSettings();
    return CPaneUnit::Init(pszParam);
}

/// Letters and digits are typed into the form; by default they would go on to the main window.
bool CSettingsUnit::IsKeyFilted(UINT nChar)
{
    return (nChar != VK_TAB && InfoOf(m_current).kind == Kind::Text) || CPaneUnit::IsKeyFilted(nChar);
}

bool CSettingsUnit::IsEdited() const
{
    return !(m_draft == App().GetSettings());
}

CString CSettingsUnit::GetCaptionNote() const
{
    return IsEdited() ? L"not applied" : L"";
}

/// What menus switch is taken over at once; what is half typed stays.
void CSettingsUnit::OnSettingsChanged()
{
    m_draft.bGrid = App().GetSettings().bGrid;
    m_draft.bLimits = App().GetSettings().bLimits;
    Invalidate(FALSE);
}

void CSettingsUnit::Revert()
{
    m_draft = App().GetSettings();
    Invalidate(FALSE);
}

/// The text that a field edits; null for fields without one.
CString Settings::*CSettingsUnit::TextOf(Field field)
{
    switch (field) {
    case FIELD_OPERATOR:
        return &Settings::strOperator;
    case FIELD_BATCH:
        return &Settings::strBatch;
    default:
        return nullptr;
    }
}

/// The flag that a field switches; null for fields without one.
bool Settings::*CSettingsUnit::FlagOf(Field field)
{
    switch (field) {
    case FIELD_GRID:
        return &Settings::bGrid;
    case FIELD_LIMITS:
        return &Settings::bLimits;
    case FIELD_FILL:
        return &Settings::bFill;
    default:
        return nullptr;
    }
}

CRect CSettingsUnit::GetFieldRect(Field field) const
{
    const CRect rc = GetContentRect();
    const FieldInfo& info = InfoOf(field);
    const int nLeft = rc.left + 14;
    const int nRight = std::max<int>(nLeft, std::min<int>(rc.right - 14, nLeft + 320));
    switch (info.kind) {
    case Kind::Check:
        return {nLeft, rc.top + info.y, nRight, rc.top + info.y + CHECK_HEIGHT};
    case Kind::Button:
        return {nLeft, rc.top + info.y, std::min(nRight, nLeft + 96), rc.top + info.y + BOX_HEIGHT + 4};
    default:
        return {nLeft, rc.top + info.y + LABEL_HEIGHT, nRight, rc.top + info.y + LABEL_HEIGHT + BOX_HEIGHT};
    }
}

void CSettingsUnit::MoveTo(int nField)
{
    m_current = static_cast<Field>(std::clamp(nField, 0, static_cast<int>(FIELD_COUNT) - 1));
    Invalidate(FALSE);
}

void CSettingsUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    CPaneUnit::OnLButtonDown(nFlags, pt);
    for (int n = 0; n < FIELD_COUNT; ++n) {
        if (!GetFieldRect(static_cast<Field>(n)).PtInRect(pt))
            continue;
        MoveTo(n);
        Use(m_current);
        return;
    }
}

/// What a click or the space bar does to a field.
void CSettingsUnit::Use(Field field)
{
    if (const auto pFlag = FlagOf(field))
        m_draft.*pFlag = !(m_draft.*pFlag);
    else if (field == FIELD_TIME_SPAN)
        StepTimeSpan(1);
    else if (field == FIELD_APPLY)
        return Apply();
    Invalidate(FALSE);
}

void CSettingsUnit::StepTimeSpan(int nSteps)
{
    const int nCount = static_cast<int>(TIME_SPANS.size());
    m_draft.nTimeSpan = (m_draft.nTimeSpan + nSteps + nCount) % nCount;
    Invalidate(FALSE);
}

void CSettingsUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    switch (nChar) {
    case VK_UP:
        return MoveTo(m_current - 1);
    case VK_DOWN:
        return MoveTo(m_current + 1);
    case VK_LEFT:
    case VK_RIGHT:
        if (m_current == FIELD_TIME_SPAN)
            StepTimeSpan(nChar == VK_LEFT ? -1 : 1);
        return;
    case VK_SPACE:
        if (InfoOf(m_current).kind != Kind::Text)
            Use(m_current);
        return;
    case VK_RETURN:
        return Apply();
    case VK_ESCAPE:
        return Revert();
    default:
        return CPaneUnit::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void CSettingsUnit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const auto pText = TextOf(m_current);
    if (!pText)
        return CPaneUnit::OnChar(nChar, nRepCnt, nFlags);
    CString& strText = m_draft.*pText;
    if (nChar == VK_BACK)
        strText = strText.Left(strText.GetLength() - 1);
    else if (nChar >= L' ' && nChar != 0x7F && strText.GetLength() < LONGEST_TEXT)
        strText += static_cast<wchar_t>(nChar);
    Invalidate(FALSE);
}

/// Makes the draft effective, tells this frame's helper, and then every unit of the frame in front.
void CSettingsUnit::Apply()
{
    App().SetSettings(m_draft);
    Notify(NOTIFY_SETTINGS_APPLIED, 0);
    BroadcastCommand(UNIT_CMD_SETTINGS_CHANGED, 0);
    Invalidate(FALSE);
}

void CSettingsUnit::Draw(CDC& dc, const CRect&)
{
    for (int n = 0; n < FIELD_COUNT; ++n)
        DrawField(dc, static_cast<Field>(n));
}

void CSettingsUnit::DrawField(CDC& dc, Field field) const
{
    const CRect rc = GetFieldRect(field);
    const bool bFocus = field == m_current && CWnd::GetFocus() == this;
    const FieldInfo& info = InfoOf(field);
    if (info.kind == Kind::Text || info.kind == Kind::Choice) {
        const CRect rcLabel(rc.left, rc.top - LABEL_HEIGHT, rc.right, rc.top - 2);
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
        return DrawButton(dc, rc, bFocus);
    }
}

void CSettingsUnit::DrawText(CDC& dc, const CRect& rc, Field field, bool bFocus) const
{
    theme::DrawBox(dc, rc, theme::PANEL, bFocus ? theme::ACCENT : theme::LINE);
    CRect rcText(rc);
    rcText.DeflateRect(8, 0);
    const CString& strText = m_draft.*TextOf(field);
    theme::DrawLine(dc, strText, rcText, theme::Font::Normal, theme::TEXT);
    if (!bFocus)
        return;
    const int x =
        std::min<int>(rcText.left + theme::TextWidth(dc, strText, theme::Font::Normal) + 1, rcText.right);
    dc.FillSolidRect(x, rc.top + 5, 1, rc.Height() - 10, theme::ACCENT);
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
    theme::DrawLine(dc, InfoOf(field).pszLabel, rcText, theme::Font::Normal,
                    bFocus ? theme::ACCENT : theme::TEXT);
}

void CSettingsUnit::DrawButton(CDC& dc, const CRect& rc, bool bFocus) const
{
    const bool bEdited = IsEdited();
    theme::DrawBox(dc, rc, bEdited ? theme::ACCENT : theme::CAPTION, bFocus ? theme::ACCENT : theme::LINE);
    theme::DrawLine(dc, InfoOf(FIELD_APPLY).pszLabel, rc, theme::Font::Bold,
                    bEdited ? theme::PANEL : theme::MUTED, DT_CENTER);
}
