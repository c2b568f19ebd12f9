// Finds lines and units by name while a tree is built, so that a frame of many units is built in linear time.
// An index is a snapshot: it lives only as long as nothing changes what it was made from.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/String.h"

#include <string_view>
#include <unordered_map>
#include <vector>

class CBaseFrameStyle;
class CBaseUnitInfo;
class CBaseUnitWnd;

namespace splitframe {

/// The first unit of a list whose record has that name, compared exactly, or null.
CBaseUnitWnd* FindUnit(const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit, const CString& strName);

/// The same for many look-ups.
class UnitNames
{
public:
    explicit UnitNames(const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit);
    CBaseUnitWnd* Find(const CString& strName) const;

private:
    std::unordered_map<CString, CBaseUnitWnd*> m_mapUnit;
};

/// The first record of each name.
class RecordNames
{
public:
    RecordNames() = default;
    explicit RecordNames(const CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo);
    /// The first record of that name, compared exactly, or null.
    CBaseUnitInfo* Find(const CString& strName) const;

private:
    std::size_t SlotOf(std::wstring_view name) const;

    // A record stands where the hash of its name says, or in the next slot that was free. The number of slots
    // is a power of two, and half of them stay free. No nodes: archives of many units are read through this.
    std::vector<CBaseUnitInfo*> m_arrSlot;
};

/// The split lines of a style.
class LineNames
{
public:
    explicit LineNames(const CBaseFrameStyle& style);
    /// Index of the first line of that name, compared exactly, or -1.
    int Find(const CString& strName) const;

private:
    std::unordered_map<CString, int> m_mapLine;
};

/// At which indices a style lists the units of each name.
class EntryNames
{
public:
    explicit EntryNames(const CBaseFrameStyle& style);
    /// The indices in order; empty if there are none.
    const std::vector<int>& Find(const CString& strName) const;

private:
    std::unordered_map<CString, std::vector<int>> m_mapEntry;
    std::vector<int> m_arrNone;
};

} // namespace splitframe
