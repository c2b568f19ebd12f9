// The form: a list of fields from top to bottom, each used by its kind.
#include "units/SettingsUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"
#include "MainFrame.h"
#include "units/SettingsField.h"

#include <platform/docview/MDIChildWnd.h>
#include <platform/window/Menu.h>
#include <platform/window/MessageLoop.h>

#include <algorithm>

using Kind = SettingsField::Kind;

namespace {

constexpr int LABEL_HEIGHT = SettingsField::LABEL_HEIGHT;
constexpr int BOX_HEIGHT = 26;
constexpr int BUTTON_WIDTH = 96;
constexpr int CHECK_HEIGHT = 22;
constexpr int LONGEST_TEXT = 24;

} // namespace

IMPLEMENT_DYNCREATE(CSettingsUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CSettingsUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_COMMAND(ID_SETTINGS_APPLY, &CSettingsUnit::Apply)
ON_COMMAND(ID_SETTINGS_REVERT, &CSettingsUnit::Revert)
ON_UPDATE_COMMAND_UI_RANGE(ID_SETTINGS_APPLY, ID_SETTINGS_REVERT, &CSettingsUnit::OnUpdateEdited)
END_MESSAGE_MAP()

GUID CSettingsUnit::GetGUID()
{
    return GUID_SETTINGS_UNIT;
}

BOOL CSettingsUnit::Init(const wchar_t* pszParam)
{
    Revert();
    return CPaneUnit::Init(pszParam);
}

/// Letters and digits are typed into the form; by default they would go on to the main window.
bool CSettingsUnit::IsKeyFilted(UINT nChar)
{
    return (nChar != VK_TAB && SettingsField::Of(m_current).kind == Kind::Text) ||
           CPaneUnit::IsKeyFilted(nChar);
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
    m_draft.bFahrenheit = App().GetSettings().bFahrenheit;
    Invalidate(FALSE);
}

bool CSettingsUnit::AskBeforeLeaving()
{
    if (!IsEdited())
        return true;
    const HWND hWnd = m_hWnd;
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame != App().GetMainFrame() && pFrame != App().GetMainFrame()->MDIGetActive())
        pFrame->ActivateFrame(-1); // so that the user sees what the question is about
    const int nAnswer = ::AfxMessageBox(L"Apply the changes to the settings?\n\n"
                                        L"No discards them. Cancel goes back to the form.",
                                        MB_YESNOCANCEL | MB_ICONQUESTION);
    if (!::IsWindow(hWnd))
        return true; // the form went while the user was thinking
    if (nAnswer == IDYES)
        Apply();
    else if (nAnswer == IDNO)
        Revert();
    else
        SetFocus();
    return nAnswer != IDCANCEL;
}

void CSettingsUnit::Revert()
{
    m_draft = App().GetSettings();
    MoveTo(m_current);
}

void CSettingsUnit::FillMenu(CMenu& menu)
{
    menu.AppendMenu(MF_STRING, ID_SETTINGS_APPLY, L"&Apply\tEnter");
    menu.AppendMenu(MF_STRING, ID_SETTINGS_REVERT, L"&Revert\tEsc");
}

void CSettingsUnit::OnUpdateEdited(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(IsEdited());
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
    const SettingsField& info = SettingsField::Of(field);
    const int nLeft = rc.left + 14;
    const int nRight = std::max<int>(nLeft, std::min<int>(rc.right - 14, nLeft + 320));
    switch (info.kind) {
    case Kind::Check:
        return {nLeft, rc.top + info.y, nRight, rc.top + info.y + CHECK_HEIGHT};
    case Kind::Button: {
        const int x = nLeft + (field == FIELD_REVERT ? BUTTON_WIDTH + 8 : 0);
        return {std::min(x, nRight), rc.top + info.y, std::min(nRight, x + BUTTON_WIDTH),
                rc.top + info.y + BOX_HEIGHT + 4};
    }
    default:
        return {nLeft, rc.top + info.y + LABEL_HEIGHT, nRight, rc.top + info.y + LABEL_HEIGHT + BOX_HEIGHT};
    }
}

void CSettingsUnit::MoveTo(int nField)
{
    m_current = static_cast<Field>(std::clamp(nField, 0, static_cast<int>(FIELD_COUNT) - 1));
    if (const auto pText = TextOf(m_current))
        m_line.Begin(m_draft.*pText);
    Invalidate(FALSE);
}

/// Tab goes through the fields and from the last one (back: the first one) to another pane.
void CSettingsUnit::MoveOn(UINT nRepCnt, UINT nFlags)
{
    const int nNext = m_current + (::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
    if (nNext >= 0 && nNext < FIELD_COUNT)
        return MoveTo(nNext);
    MoveTo(nNext < 0 ? FIELD_COUNT - 1 : 0);
    CPaneUnit::OnKeyDown(VK_TAB, nRepCnt, nFlags);
}

void CSettingsUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    CPaneUnit::OnLButtonDown(nFlags, pt);
    for (int n = 0; n < FIELD_COUNT; ++n) {
        if (!GetFieldRect(static_cast<Field>(n)).PtInRect(pt))
            continue;
        MoveTo(n);
        if (TextOf(m_current))
            return ChooseCaret(pt);
        return Use(m_current);
    }
}

/// Between the two characters that are nearest to the point.
void CSettingsUnit::ChooseCaret(CPoint pt)
{
    const CString& strText = m_draft.*TextOf(m_current);
    const int nRoom = pt.x - GetFieldRect(m_current).left - SettingsField::TEXT_MARGIN;
    CDC dc; // measures only
    int nCaret = 0, nWidth = 0;
    for (int n = 1; n <= strText.GetLength(); ++n) {
        const int nNext = theme::TextWidth(dc, strText.Left(n), theme::Font::Normal);
        if ((nWidth + nNext) / 2 > nRoom)
            break;
        nWidth = nNext;
        nCaret = n;
    }
    m_line.SetCaret(nCaret, strText);
    Invalidate(FALSE);
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
    else if (field == FIELD_REVERT)
        return Revert();
    Invalidate(FALSE);
}

void CSettingsUnit::StepTimeSpan(int nSteps)
{
    const int nCount = static_cast<int>(TIME_SPANS.size());
    m_draft.nTimeSpan = (m_draft.nTimeSpan + nSteps + nCount) % nCount;
    Invalidate(FALSE);
}

/// @return whether the key moves the caret or deletes
bool CSettingsUnit::PressKeyInText(UINT nChar)
{
    const auto pText = TextOf(m_current);
    if (!pText || !m_line.PressKey(nChar, m_draft.*pText))
        return false;
    Invalidate(FALSE);
    return true;
}

void CSettingsUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (PressKeyInText(nChar))
        return;
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
        if (SettingsField::Of(m_current).kind != Kind::Text)
            Use(m_current);
        return;
    case VK_RETURN:
        return Apply();
    case VK_ESCAPE:
        return Revert();
    case VK_TAB:
        return MoveOn(nRepCnt, nFlags);
    default:
        return CPaneUnit::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void CSettingsUnit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const auto pText = TextOf(m_current);
    if (!pText)
        return CPaneUnit::OnChar(nChar, nRepCnt, nFlags);
    if (m_line.Type(nChar, m_draft.*pText, LONGEST_TEXT))
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
