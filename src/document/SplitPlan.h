// Plans a split tree from what the lines of a style name as their sides, whatever that is. Knows numbers
// only: lines by their position in the style, leaves by any numbers from 0.
//
// The first line is the root and nobody's child. Lines that the root does not reach take nothing. Of several
// lines that name the same child the last one holds it, the side of the others is empty. A link that would
// close a circle is not made. So every plan is a tree, in which each line that the root reaches hangs exactly
// once.
#pragma once

#include "platform/base/Export.h"

#include <vector>

namespace splitframe {

struct SplitSide
{
    enum class Kind
    {
        Empty,
        Line,
        Leaf
    };
    Kind kind = Kind::Empty;
    int nIndex = 0;
};

struct SplitSides
{
    SplitSide first;
    SplitSide second;
};

struct SplitPlan
{
    std::vector<SplitSides> arrLine; // what each line holds
    std::vector<char> arrHangs;      // not 0: the line hangs on the root or is the root

    bool Hangs(int nLine) const { return arrHangs[static_cast<std::size_t>(nLine)] != 0; }
};

/// @param arrWanted  the sides that each line names; line indices lie inside the list
/// @param nLeaves    one more than the largest leaf number
/// Takes n log n steps for n lines.
SPLITFRAME_API SplitPlan PlanSplitTree(const std::vector<SplitSides>& arrWanted, int nLeaves);

} // namespace splitframe
