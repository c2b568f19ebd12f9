// How those who keep lists of units learn that a unit is being deleted.
// Units know nothing of documents or caches; whoever keeps a list holds an observer for as long as the list
// lives.
#pragma once

#include "platform/base/Export.h"

#include <functional>

class CBaseUnitWnd;

namespace splitframe {

/// Subscribes from construction to destruction. Hold it as a member beside the list it serves.
/// The callback runs in the unit's destructor, once for each unit, while the window part still lives but the
/// derived parts are gone: compare the pointer, call nothing. It must not throw. Observers may come and go,
/// and further units may be deleted, while callbacks run.
class SPLITFRAME_API CUnitObserver
{
public:
    explicit CUnitObserver(std::function<void(CBaseUnitWnd*)> onDeleted);
    CUnitObserver(const CUnitObserver&) = delete;
    CUnitObserver& operator=(const CUnitObserver&) = delete;
    ~CUnitObserver();

    /// Tells every observer. Called by the unit.
    static void UnitDeleted(CBaseUnitWnd* pUnit);

private:
    std::function<void(CBaseUnitWnd*)> m_onDeleted;
    CUnitObserver* m_pPrev = nullptr;
    CUnitObserver* m_pNext = nullptr;
};

} // namespace splitframe
