// The journal on the screen: newest entries at the top, with the time of day and a patch in the colour of
// their severity. Wheel and keys scroll; Enter acknowledges the alarms.
#pragma once

#include "units/PaneUnit.h"
#include "units/ScrollList.h"

class CLogUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CLogUnit)

public:
    CLogUnit() = default;
    GUID GetGUID() override;
    BOOL ProcessMouseWheel(short zDelta, CPoint pt) override;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnNewData() override;
    void OnJournalChanged() override;
    void FillMenu(CMenu& menu) override;

    void OnSize(UINT nType, int cx, int cy);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    void ListRows();
    void DrawEntry(CDC& dc, int nRow) const;

    CScrollList m_rows;
    int m_nEntries = 0;
};
