// A number that changes whenever the links of any split tree change, or a node dies. Who keeps pointers to
// nodes across a call into host code compares it before and after.
#pragma once

#include <cstdint>

namespace splitframe {

// One for the process: trees live on the user-interface thread only.
extern std::uint64_t g_nTreeEpoch;

} // namespace splitframe
