// Rows that do not all fit: which ones are to be seen, which one lies under a point, and what keys and wheel
// do to that. Draws only the thumb at the right edge.
#pragma once

#include <platform/base/Geometry.h>
#include <platform/base/Types.h>

class CDC;

class CScrollList
{
public:
    /// @param rc  where the rows stand, client coordinates
    void SetRows(int nRows, int nRowHeight, const CRect& rc);

    int GetFirst() const { return m_nFirst; }
    /// One behind the last row that is at least partly to be seen.
    int GetEnd() const;
    /// Rows that fit whole, at least 1.
    int GetPage() const;
    CRect GetRowRect(int nRow) const;
    /// The row at a point, or -1.
    int HitTest(CPoint pt) const;

    /// @return whether another row is now first
    bool ScrollTo(int nFirst);
    bool ScrollBy(int nRows) { return ScrollTo(m_nFirst + nRows); }
    bool ScrollByWheel(short zDelta);
    bool MakeVisible(int nRow);

    /// The row that a key leads to from nRow: arrows, page keys, Home and End. -1 for other keys and for no
    /// rows.
    int RowByKey(UINT nChar, int nRow) const;

    /// Nothing when all rows fit.
    void DrawThumb(CDC& dc) const;

private:
    int m_nRows = 0;
    int m_nRowHeight = 1;
    int m_nFirst = 0;
    CRect m_rc;
};
