// Surfaces out to PNG files. Knows surfaces and files only.
#pragma once

#include "platform/base/Export.h"
#include "platform/graphics/Surface.h"

#include <filesystem>
#include <string>

namespace splitframe {

/// Writes all device pixels of the surface to a file, replacing one that is there.
/// @return empty, or the reason in words (no such directory, no permission, disk full, empty surface); then
/// no half-written file is left under that name
SPLITFRAME_PLATFORM_API std::string WritePng(const Surface& surface, const std::filesystem::path& file);

} // namespace splitframe
