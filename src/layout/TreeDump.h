// A split tree as text for people: tests, failure messages, the viewer's list.
#pragma once

#include "platform/base/Export.h"

#include <functional>
#include <string>

class CSplitLine;

namespace splitframe {

/// One line a node in UTF-8, two spaces deeper than its line: kind, name, rate, what is not usual (movable,
/// collapsed, fixed or limited sizes, hidden, no window), and the rectangle that it covers now.
/// @param remark  what else to say of a node, before its rectangle; may be empty
SPLITFRAME_API std::string DumpTree(const CSplitLine& node,
                                    const std::function<std::string(const CSplitLine&)>& remark = {});

} // namespace splitframe
