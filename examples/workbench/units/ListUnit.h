// What the units have in common that show rows of which not all fit: wheel, keys and a new size move through
// them. A unit class says how many rows there are and draws them.
#pragma once

#include "units/PaneUnit.h"
#include "units/ScrollList.h"

class CListUnit : public CPaneUnit
{
    DECLARE_DYNAMIC(CListUnit)

public:
    BOOL ProcessMouseWheel(short zDelta, CPoint pt) override;
    const CScrollList& GetRows() const { return m_rows; }

protected:
    static constexpr int HEADER_HEIGHT = 24;

    /// Calls PlaceRows with what there is to show now.
    virtual void ListRows() = 0;
    /// The row that keys start from: the one that is in sight in any case. -1 for none.
    virtual int GetCurrentRow() const { return m_rows.GetFirst(); }
    /// A key leads to a row. Scrolls there.
    virtual void OnRowByKey(int nRow);

    /// @param nHeaderHeight  what the rows leave free above them
    void PlaceRows(int nRows, int nHeaderHeight);

    void OnSize(UINT nType, int cx, int cy);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

    CScrollList m_rows;
};
