// A clock: hands when there is room for a face, digits beside or below it, the date. Runs by a timer of its
// own and not by the plant's data, so it goes on when the feed is paused.
#pragma once

#include "units/PaneUnit.h"

class CClockUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CClockUnit)

public:
    CClockUnit() = default;
    GUID GetGUID() override;
    BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo) override;

protected:
    bool IsLive() const override { return false; }
    void Draw(CDC& dc, const CRect& rc) override;
    void OnTimer(UINT_PTR nIDEvent);

    DECLARE_MESSAGE_MAP()
};
