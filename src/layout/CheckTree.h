// What must be true of a split tree between any two calls, checked.
#pragma once

#include "platform/base/Export.h"

#include <string>

class CSplitLine;

namespace splitframe {

/// @return the first broken rule in words (UTF-8), naming the node; empty when all hold. The rules: a leaf
/// has no sides; a line's two sides differ; a line on a side has its parent link to the line that holds it,
/// and hangs nowhere else; a unit's parent link leads to a line that holds it, if anywhere; every share is a
/// finite number. An empty side is allowed.
SPLITFRAME_API std::string CheckTree(const CSplitLine& node);

} // namespace splitframe
