// The arithmetic of rows.
#include "units/ScrollList.h"

#include "Theme.h"

#include <platform/window/Messages.h>

#include <algorithm>

void CScrollList::SetRows(int nRows, int nRowHeight, const CRect& rc)
{
    m_nRows = std::max(nRows, 0);
    m_nRowHeight = std::max(nRowHeight, 1);
    m_rc = rc;
    ScrollTo(m_nFirst);
}

int CScrollList::GetEnd() const
{
    const int nShown = (std::max<int>(m_rc.Height(), 0) + m_nRowHeight - 1) / m_nRowHeight;
    return std::min(m_nRows, m_nFirst + nShown);
}

int CScrollList::GetPage() const
{
    return std::max<int>(m_rc.Height() / m_nRowHeight, 1);
}

CRect CScrollList::GetRowRect(int nRow) const
{
    const int y = m_rc.top + (nRow - m_nFirst) * m_nRowHeight;
    return {m_rc.left, y, m_rc.right, y + m_nRowHeight};
}

int CScrollList::HitTest(CPoint pt) const
{
    if (!m_rc.PtInRect(pt))
        return -1;
    const int nRow = m_nFirst + (pt.y - m_rc.top) / m_nRowHeight;
    return nRow < m_nRows ? nRow : -1;
}

bool CScrollList::ScrollTo(int nFirst)
{
    const int nBefore = m_nFirst;
    m_nFirst = std::clamp(nFirst, 0, std::max(m_nRows - GetPage(), 0));
    return m_nFirst != nBefore;
}

bool CScrollList::ScrollByWheel(short zDelta)
{
    return ScrollBy(-3 * zDelta / WHEEL_DELTA);
}

bool CScrollList::MakeVisible(int nRow)
{
    if (nRow < 0)
        return false;
    if (nRow < m_nFirst)
        return ScrollTo(nRow);
    return nRow >= m_nFirst + GetPage() && ScrollTo(nRow - GetPage() + 1);
}

int CScrollList::RowByKey(UINT nChar, int nRow) const
{
    if (m_nRows == 0)
        return -1;
    switch (nChar) {
    case VK_UP:
        return std::max(nRow - 1, 0);
    case VK_DOWN:
        return std::min(nRow + 1, m_nRows - 1);
    case VK_PRIOR:
        return std::max(nRow - GetPage(), 0);
    case VK_NEXT:
        return std::min(std::max(nRow, 0) + GetPage(), m_nRows - 1);
    case VK_HOME:
        return 0;
    case VK_END:
        return m_nRows - 1;
    default:
        return -1;
    }
}

void CScrollList::DrawThumb(CDC& dc) const
{
    if (m_nRows <= GetPage() || m_rc.Height() < 24)
        return;
    const int nLength = std::max<int>(m_rc.Height() * GetPage() / m_nRows, 16);
    const int nRoom = m_rc.Height() - nLength;
    const int y = m_rc.top + nRoom * m_nFirst / (m_nRows - GetPage());
    const CRect rcThumb(m_rc.right - 7, y + 1, m_rc.right - 2, y + nLength - 1);
    theme::DrawBox(dc, rcThumb, theme::LINE, theme::LINE, 5);
}
