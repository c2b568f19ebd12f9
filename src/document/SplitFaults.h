// Tells what is wrong with the split lines of a style: names that lead nowhere, names given twice, and what
// the plan of its tree had to leave out.
#pragma once

#include "document/SplitPlan.h"
#include "platform/base/String.h"

#include <functional>

class CBaseFrameStyle;

namespace splitframe {

/// @param arrWanted  what each line's sides name; empty sides are names that lead nowhere
/// @param report     called with a line's index, what is wrong, and the name that it is about
void FindSplitFaults(
    const CBaseFrameStyle& style, const std::vector<SplitSides>& arrWanted, const SplitPlan& plan,
    const std::function<void(int nLine, const wchar_t* pszMessage, const CString& strName)>& report);

} // namespace splitframe
