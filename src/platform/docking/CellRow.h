// What the two bars share: cells side by side, each with a text and a rectangle in the bar's client
// coordinates.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/String.h"

#include <algorithm>
#include <vector>

namespace splitframe {

/// @tparam Cell  has strText and rc
template <class Cell> class CellRow
{
public:
    std::vector<Cell> cells;

    int GetCount() const { return static_cast<int>(cells.size()); }
    /// Null out of range.
    const Cell* Get(int nCell) const
    {
        return nCell >= 0 && nCell < GetCount() ? &cells[static_cast<std::size_t>(nCell)] : nullptr;
    }
    CString GetText(int nCell) const
    {
        const Cell* pCell = Get(nCell);
        return pCell ? pCell->strText : CString();
    }
    CRect GetRect(int nCell) const
    {
        const Cell* pCell = Get(nCell);
        return pCell ? pCell->rc : CRect();
    }
    /// The first cell with a property, or -1.
    template <class Predicate> int Find(Predicate predicate) const
    {
        const auto found = std::ranges::find_if(cells, predicate);
        return found == cells.end() ? -1 : static_cast<int>(found - cells.begin());
    }
    /// The cell at a point, or -1.
    int HitTest(CPoint pt) const
    {
        return Find([pt](const Cell& cell) { return cell.rc.PtInRect(pt) != FALSE; });
    }
};

} // namespace splitframe
