// The list of objects that wait for the outermost call to end.
#include "platform/window/CallScope.h"
#include "platform/base/Object.h"
#include "platform/window/Report.h"

#include <algorithm>
#include <vector>

namespace splitframe {

int g_nCallDepth = 0;
bool g_bDeletionsPending = false;
unsigned long g_nHostCalls = 0;

namespace {
// Owned by the list until they are deleted or taken off it.
std::vector<CObject*>& Waiting()
{
    static std::vector<CObject*> waiting;
    return waiting;
}

void DeleteReporting(CObject* pObject) noexcept
{
    try {
        delete pObject;
    } catch (...) {
        ReportCurrentException(L"deletion");
    }
}
} // namespace

void RunPendingDeletions() noexcept
{
    std::vector<CObject*>& waiting = Waiting();
    // One at a time from the front: a destructor may add objects, or delete one that waits itself.
    while (!waiting.empty()) {
        CObject* pObject = waiting.front();
        waiting.erase(waiting.begin());
        DeleteReporting(pObject);
    }
    g_bDeletionsPending = false;
}

} // namespace splitframe

void DeleteLater(CObject* pObject)
{
    if (!pObject)
        return;
    if (splitframe::g_nCallDepth == 0) {
        splitframe::DeleteReporting(pObject);
        return;
    }
    std::vector<CObject*>& waiting = splitframe::Waiting();
    if (std::find(waiting.begin(), waiting.end(), pObject) == waiting.end())
        waiting.push_back(pObject);
    splitframe::g_bDeletionsPending = true;
}

bool CancelDeleteLater(const CObject* pObject)
{
    return std::erase(splitframe::Waiting(), pObject) != 0;
}
