// Makes units and helpers from the classes that the host registered. A class that is not registered, can't be
// made, or is of the wrong kind makes nothing.
#pragma once

#include "platform/base/Types.h"

#include <memory>

class CBaseFrameHelper;
class CBaseUnitWnd;

namespace splitframe {

/// Whether MakeUnit (MakeHelper) would make something.
bool IsUnitClass(const GUID& guid);
bool IsHelperClass(const GUID& guid);

/// A new unit without a window, or null. What the host's constructor throws passes through.
std::unique_ptr<CBaseUnitWnd> MakeUnit(const GUID& guid);
/// A new helper, or null.
std::unique_ptr<CBaseFrameHelper> MakeHelper(const GUID& guid);
/// A new helper of the same class as another, or null.
std::unique_ptr<CBaseFrameHelper> MakeHelperLike(const CBaseFrameHelper& helper);

} // namespace splitframe
