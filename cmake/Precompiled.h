// What nearly every source includes, parsed once for each library and program when
// SPLITFRAME_PRECOMPILE is on. No source relies on it: builds without it (the release preset) prove
// that each includes what it needs.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/Geometry.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/window/Wnd.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>
