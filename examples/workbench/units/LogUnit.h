// The journal on the screen: newest entries at the top, with the time of day and a patch in the colour of
// their severity. Wheel and keys scroll; Enter acknowledges the alarms.
#pragma once

#include "units/ListUnit.h"

class CLogUnit : public CListUnit
{
    DECLARE_DYNCREATE(CLogUnit)

public:
    CLogUnit() = default;
    GUID GetGUID() override;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    CString GetCaptionNote() const override;
    void OnNewData() override;
    void OnJournalChanged() override;
    void FillMenu(CMenu& menu) override;
    void ListRows() override;

    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);

    DECLARE_MESSAGE_MAP()

private:
    void DrawEntry(CDC& dc, int nRow) const;

    int m_nEntries = 0;
};
