// The class GUIDs of a layout, found in its markup before any of it is loaded.
#pragma once

#include "platform/base/Types.h"

#include <vector>

class CMarkup;

namespace viewer {

/// What every GUID element of the document stands for, each value once, and the zero GUID. Leaves no cursor
/// set.
std::vector<GUID> GatherClassGuids(CMarkup& markup);

} // namespace viewer
