// Moving through rows.
#include "units/ListUnit.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CListUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CListUnit, CPaneUnit)
ON_WM_SIZE()
ON_WM_KEYDOWN()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

void CListUnit::PlaceRows(int nRows, int nHeaderHeight)
{
    CRect rc = GetContentRect();
    rc.top = std::min(rc.top + nHeaderHeight, rc.bottom);
    m_rows.SetRows(nRows, theme::ROW_HEIGHT, rc);
}

void CListUnit::OnSize(UINT nType, int cx, int cy)
{
    CPaneUnit::OnSize(nType, cx, cy);
    ListRows();
    m_rows.MakeVisible(GetCurrentRow());
}

void CListUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int nRow = m_rows.RowByKey(nChar, GetCurrentRow());
    if (nRow >= 0)
        OnRowByKey(nRow);
    else
        CPaneUnit::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CListUnit::OnRowByKey(int nRow)
{
    if (m_rows.ScrollTo(nRow))
        Invalidate(FALSE);
}

BOOL CListUnit::OnMouseWheel(UINT, short zDelta, CPoint pt)
{
    return ProcessMouseWheel(zDelta, pt);
}

BOOL CListUnit::ProcessMouseWheel(short zDelta, CPoint)
{
    if (m_rows.ScrollByWheel(zDelta))
        Invalidate(FALSE);
    return TRUE;
}
