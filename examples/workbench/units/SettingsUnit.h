// The settings form. The workbench has one, a global unit that is lent to whichever frame is in front and
// places it; so what is half typed in one frame is still there in the next.
//
// Up and Down move between fields, Left and Right change a choice, Space switches a box or presses the
// button, Enter applies, text is typed into the text fields. Escape goes back to what is in effect. Nothing
// takes effect before it is applied.
#pragma once

#include "Settings.h"
#include "units/PaneUnit.h"

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
        FIELD_COUNT
    };

    CSettingsUnit() = default;
    GUID GetGUID() override;
    BOOL Init(const wchar_t* pszParam) override;
    bool IsKeyFilted(UINT nChar) override;

    /// What is typed or pressed, client coordinates.
    CRect GetFieldRect(Field field) const;
    Field GetCurrentField() const { return m_current; }
    /// Whether something was changed that has not been applied.
    bool IsEdited() const;

protected:
    bool IsLive() const override { return false; }
    CString GetCaption() const override { return L"Settings"; }
    CString GetCaptionNote() const override;
    void Draw(CDC& dc, const CRect& rc) override;
    void OnSettingsChanged() override;

    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);

    DECLARE_MESSAGE_MAP()

private:
    void MoveTo(int nField);
    void Use(Field field);
    void StepTimeSpan(int nSteps);
    void Apply();
    void Revert();
    static CString Settings::*TextOf(Field field);
    static bool Settings::*FlagOf(Field field);

    void DrawField(CDC& dc, Field field) const;
    void DrawText(CDC& dc, const CRect& rc, Field field, bool bFocus) const;
    void DrawChoice(CDC& dc, const CRect& rc, bool bFocus) const;
    void DrawCheck(CDC& dc, const CRect& rc, Field field, bool bFocus) const;
    void DrawButton(CDC& dc, const CRect& rc, bool bFocus) const;

    Settings m_draft; // what the form shows
    Field m_current = FIELD_OPERATOR;
};
