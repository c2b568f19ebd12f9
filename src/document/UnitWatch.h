// Holds a unit across calls into host code, which may delete it.
#pragma once

#include "unit/BaseUnitWnd.h"
#include "unit/UnitObserver.h"

#include <utility>

namespace splitframe {

/// A pointer to a unit that becomes null when the unit is deleted. Owns nothing.
class UnitWatch
{
public:
    explicit UnitWatch(CBaseUnitWnd* pUnit)
        : m_pUnit(pUnit), m_observer([this](const CBaseUnitWnd* pDeleted) {
              if (pDeleted == m_pUnit)
                  m_pUnit = nullptr;
          })
    {
    }

    CBaseUnitWnd* Get() const { return m_pUnit; }

private:
    CBaseUnitWnd* m_pUnit;
    CUnitObserver m_observer;
};

/// A unit that nobody lists yet: deleted at the end unless it was released, or deleted by its own hooks.
class NewUnit
{
public:
    /// @param pUnit  owned from now on; may be null
    explicit NewUnit(CBaseUnitWnd* pUnit) : m_watch(pUnit), m_pOuter(std::exchange(s_pInnermost, this)) {}
    NewUnit(const NewUnit&) = delete;
    NewUnit& operator=(const NewUnit&) = delete;
    ~NewUnit()
    {
        s_pInnermost = m_pOuter;
        if (!m_bReleased)
            delete m_watch.Get();
    }

    /// The new units of now, of which a hook of one may have made the next: the last one, and the one before.
    static const NewUnit* GetInnermost() { return s_pInnermost; }
    const NewUnit* GetOuter() const { return m_pOuter; }

    CBaseUnitWnd* Get() const { return m_watch.Get(); }
    CBaseUnitWnd* Release()
    {
        m_bReleased = true;
        return Get();
    }

private:
    inline static NewUnit* s_pInnermost = nullptr; // user-interface thread only

    UnitWatch m_watch;
    NewUnit* m_pOuter;
    bool m_bReleased = false;
};

} // namespace splitframe
