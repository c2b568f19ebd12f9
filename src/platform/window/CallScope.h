// Nested calls into the library: when the outermost one ends, objects whose deletion was put off are freed;
// and a counter that tells whether host code ran meanwhile. A window may die at any moment of a call. The C++
// objects that callers up the stack may still use (documents, views, trees, units, frames) are therefore
// freed only when no call is under way any more.
#pragma once

#include "platform/base/Export.h"

class CObject;

namespace splitframe {
/// Depth of the nested calls; only CCallScope and DeleteLater use it.
SPLITFRAME_PLATFORM_API extern int g_nCallDepth;
SPLITFRAME_PLATFORM_API extern bool g_bDeletionsPending;
SPLITFRAME_PLATFORM_API extern unsigned long g_nHostCalls;
SPLITFRAME_PLATFORM_API void RunPendingDeletions() noexcept;
} // namespace splitframe

/// Nesting guard, placed at message dispatch and at the library's public entry points. The end of the
/// outermost one deletes what DeleteLater collected. User-interface thread only.
class CCallScope
{
public:
    CCallScope() { ++splitframe::g_nCallDepth; }
    ~CCallScope()
    {
        if (splitframe::g_nCallDepth == 1 && splitframe::g_bDeletionsPending)
            splitframe::RunPendingDeletions();
        --splitframe::g_nCallDepth;
    }
    CCallScope(const CCallScope&) = delete;
    CCallScope& operator=(const CCallScope&) = delete;
};

/// Deletes an object through its virtual destructor when the outermost CCallScope ends; at once when none is
/// open. An object that is already waiting is not added twice; null does nothing. Exceptions that leave a
/// destructor are reported, not passed on.
SPLITFRAME_PLATFORM_API void DeleteLater(CObject* pObject);

/// Takes an object off the list of those waiting for deletion, for an owner that deletes it itself.
/// @return whether it was waiting
SPLITFRAME_PLATFORM_API bool CancelDeleteLater(const CObject* pObject);

/// Number of times that code outside the platform may have run: a message-map entry, an overridden window
/// procedure, a command handler or a creation and destruction hook. Equal values before and after a piece of
/// work mean that no handler ran during it. A message that no class handles does not count. Wraps around.
inline unsigned long HostCallCount()
{
    return splitframe::g_nHostCalls;
}
