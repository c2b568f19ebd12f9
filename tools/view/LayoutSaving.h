// Saving a layout with the shares that its lines have now.
#pragma once

#include "LayoutFile.h"
#include "LineRates.h"
#include "Messages.h"

#include <string>
#include <vector>

namespace viewer {

/// Whether a file has other bytes than a layout that was read from it. One that is not there any more has
/// not.
bool IsOther(const std::string& strFile, const LayoutFile& layout);

/// Writes a layout's bytes with other shares into a file, whole or not at all.
/// @param strFile  may be another one than the layout's own
/// @return false when it was not done, which is told as an error
bool SaveLayout(LayoutFile& layout, const std::vector<ChangedRate>& changed, const std::string& strFile,
                Messages& messages);

} // namespace viewer
