// The settings form. The workbench has one, a global unit that is lent to whichever frame is in front and
// places it; so what is half typed in one frame is still there in the next.
//
// Up and Down move between fields, Left and Right change a choice, Space switches a box or presses the
// button, Enter applies, text is typed into the text fields, where Left, Right, Home, End and the mouse move
// the caret. Escape goes back to what is in effect. Nothing takes effect before it is applied, and nothing
// that is not applied is lost without a question.
#pragma once

#include "Settings.h"
#include "units/PaneUnit.h"
#include "units/TextLine.h"

class CSettingsUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CSettingsUnit)

public:
    enum Field
    {
        FIELD_OPERATOR,
        FIELD_BATCH,
        FIELD_TIME_SPAN,
        FIELD_GRID,
        FIELD_LIMITS,
        FIELD_FILL,
        FIELD_APPLY,
        FIELD_REVERT,
        FIELD_COUNT
    };

    CSettingsUnit() = default;
    GUID GetGUID() override;
    BOOL Init(const wchar_t* pszParam) override;
    bool IsKeyFilted(UINT nChar) override;

    /// What is typed or pressed, client coordinates.
    CRect GetFieldRect(Field field) const;
    Field GetCurrentField() const { return m_current; }
    /// What the form shows.
    const Settings& GetDraft() const { return m_draft; }
    /// Whether something was changed that has not been applied.
    bool IsEdited() const;
    /// Asks what is to become of changes that are not applied, with the frame that has the form in front:
    /// they are applied or thrown away, or the user wants to go on with them. Asks nothing when there are
    /// none. Anything may have happened when it returns: the user has been waited for.
    /// @return false: stay where you are
    bool AskBeforeLeaving();

protected:
    bool IsLive() const override { return false; }
    CString GetCaption() const override { return L"Settings"; }
    CString GetCaptionNote() const override;
    void Draw(CDC& dc, const CRect& rc) override;
    void OnSettingsChanged() override;
    void FillMenu(CMenu& menu) override;

    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnUpdateEdited(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    void MoveTo(int nField);
    void MoveOn(UINT nRepCnt, UINT nFlags);
    void Use(Field field);
    void ChooseCaret(CPoint pt);
    bool PressKeyInText(UINT nChar);
    void StepTimeSpan(int nSteps);
    void Apply();
    void Revert();
    static CString Settings::*TextOf(Field field);
    static bool Settings::*FlagOf(Field field);

    void DrawField(CDC& dc, Field field) const;
    void DrawText(CDC& dc, const CRect& rc, Field field, bool bFocus) const;
    void DrawChoice(CDC& dc, const CRect& rc, bool bFocus) const;
    void DrawCheck(CDC& dc, const CRect& rc, Field field, bool bFocus) const;
    void DrawButton(CDC& dc, const CRect& rc, Field field, bool bFocus) const;

    Settings m_draft; // what the form shows
    Field m_current = FIELD_OPERATOR;
    CTextLine m_line; // the caret in the current field, if it is a text
};
