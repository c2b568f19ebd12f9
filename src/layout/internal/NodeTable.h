// The nodes of a subtree in one flat list, in pre-order, so that everything about it can be computed in
// loops, however deep it is: upwards by running through the list backwards. Decides what belongs to a tree: a
// side whose parent link leads back to the line that names it. With that rule every node is reached once at
// most, even when links run in circles.
#pragma once

#include "layout/SplitLine.h"

#include <algorithm>
#include <vector>

namespace splitframe {

/// One axis of what a node needs and takes, in pixels.
struct Extent
{
    int nMin = 0;
    int nMax = 0;
    int nFixed = 0; ///< the part taken by sides of fixed size

    bool IsFixed() const { return nMin == nMax; }
};

struct NodeSizes
{
    Extent width;
    Extent height;
};

class CNodeTable
{
public:
    struct Entry
    {
        CSplitLine* pNode;
        int nSecond; ///< index of the second side, -1 without one
        int nEnd;    ///< index after the last node of this subtree
    };

    /// A side of a line as the tree that starts at `start` sees it: null when it is empty or belongs
    /// elsewhere.
    static CSplitLine* SideOf(const CSplitLine& line, bool bFirst, const CSplitLine& start);

    /// Lists the subtree of a node. The pointers are good until g_nTreeEpoch changes.
    void Build(CSplitLine& start);

    int GetCount() const { return static_cast<int>(m_arrEntry.size()); }
    const Entry& operator[](int nIndex) const { return m_arrEntry[static_cast<std::size_t>(nIndex)]; }
    /// Index of the first side, -1 without one.
    int FirstOf(int nIndex) const
    {
        const Entry& entry = (*this)[nIndex];
        return nIndex + 1 == entry.nEnd || nIndex + 1 == entry.nSecond ? -1 : nIndex + 1;
    }

    /// Computes a value for each node of a subtree, sides before their line. A collapsed node and an empty
    /// side have the value T{}.
    /// @param arrValue  by index; made as long as the table
    /// @param leaf      T(const CSplitLine&)
    /// @param line      T(const CSplitLine&, const T& first, const T& second)
    template <class T, class LeafFunction, class LineFunction>
    void FoldUp(int nIndex, std::vector<T>& arrValue, LeafFunction leaf, LineFunction line) const
    {
        arrValue.resize(m_arrEntry.size());
        static constexpr T none{};
        for (int i = (*this)[nIndex].nEnd - 1; i >= nIndex; --i) {
            const Entry& entry = (*this)[i];
            const CSplitLine& node = *entry.pNode;
            T& value = arrValue[static_cast<std::size_t>(i)];
            if (!node.m_bShow) {
                value = none;
            } else if (node.m_nType == CSplitLine::NT_UNIT) {
                value = leaf(node);
            } else {
                const int nFirst = FirstOf(i);
                value = line(node, nFirst < 0 ? none : arrValue[static_cast<std::size_t>(nFirst)],
                             entry.nSecond < 0 ? none : arrValue[static_cast<std::size_t>(entry.nSecond)]);
            }
        }
    }

private:
    std::vector<Entry> m_arrEntry;
};

/// Where two values meet along a line's sides: beside each other they add up, else the larger one counts.
inline int Combine(int nFirst, int nSecond, bool bAlong)
{
    return bAlong ? AddClamped(nFirst, nSecond) : std::max(nFirst, nSecond);
}
inline double Combine(double dFirst, double dSecond, bool bAlong)
{
    if (bAlong)
        return dFirst + dSecond;
    return dFirst > dSecond ? dFirst : dSecond;
}

/// What the units of a node need and take: computes it for the subtree at nIndex.
void FoldSizes(const CNodeTable& table, int nIndex, std::vector<NodeSizes>& arrSizes);
/// The rectangles that the windows cover now, in their parents' client coordinates.
void FoldViewRects(const CNodeTable& table, std::vector<CRect>& arrRect);
/// The smallest rectangle around both; one without area adds nothing, and gives way to the other.
CRect MergeViewRects(const CRect& a, const CRect& b);

} // namespace splitframe
