// The strip at the top of a frame, of fixed height: which plant and batch, who is on duty, the instrument
// that is being watched, whether the layout is locked, and how many alarms there are. A click on the
// alarms opens the frame that lists them, a click on the lock turns it.
#pragma once

#include "units/PaneUnit.h"

class CBannerUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CBannerUnit)

public:
    CBannerUnit() = default;
    GUID GetGUID() override;
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam) override;

    /// Where the number of alarms and the lock stand, client coordinates. A narrow banner has no lock.
    CRect GetAlarmRect() const { return GetPillRect(0); }
    CRect GetLockRect() const { return GetPillRect(1); }
    /// The instrument that is being watched, or -1.
    int GetWatched() const { return m_nWatched; }

protected:
    int GetCaptionHeight() const override { return 0; }
    COLORREF GetBackground() const override { return theme::HEADER; }
    int GetSelectedInstrument() const override { return m_nWatched; }
    void Draw(CDC& dc, const CRect& rc) override;
    void OnJournalChanged() override { Invalidate(FALSE); }
    void OnLButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    CRect GetPillRect(int nFromRight) const;
    void DrawWatched(CDC& dc, CRect& rcRoom) const;
    static void DrawNote(CDC& dc, CRect& rcRoom, const CString& strText, COLORREF text, COLORREF fill);

    int m_nWatched = -1;
};
