// The strip at the top of a frame, of fixed height: which plant and batch, who is on duty, and how many
// alarms there are. A click on the alarms opens the frame that lists them.
#pragma once

#include "units/PaneUnit.h"

class CBannerUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CBannerUnit)

public:
    CBannerUnit() = default;
    GUID GetGUID() override;

    /// Where the number of alarms stands, client coordinates.
    CRect GetAlarmRect() const;

protected:
    int GetCaptionHeight() const override { return 0; }
    COLORREF GetBackground() const override { return theme::HEADER; }
    void Draw(CDC& dc, const CRect& rc) override;
    void OnJournalChanged() override { Invalidate(FALSE); }
    void OnLButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()
};
