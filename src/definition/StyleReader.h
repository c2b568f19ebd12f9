// Reads the styles of one frame: which units each shows, and its split lines.
#pragma once

#include "definition/LayoutFaults.h"
#include "definition/LayoutText.h"
#include "platform/base/Array.h"

#include <memory>
#include <unordered_map>
#include <vector>

class CBaseFrameStyle;
class CBaseUnitInfo;

namespace splitframe {

/// The unit records of a list by name; of several with one name the first.
class UnitRecords
{
public:
    void Add(CBaseUnitInfo* pInfo);
    CBaseUnitInfo* Find(const CString& strName) const;

private:
    std::unordered_map<CString, CBaseUnitInfo*> m_mapInfo; // not owned
};

class StyleReader
{
public:
    /// A style finds its units among the frame's own first, then among the global ones.
    StyleReader(const UnitRecords& own, const UnitRecords& global, LayoutFaults& faults)
        : m_own(own), m_global(global), m_faults(faults)
    {
    }

    /// Reads all further styles of a frame. A global unit that one refers to is marked as such.
    std::vector<std::unique_ptr<CBaseFrameStyle>> ReadAll(LayoutText::Element& frame);

private:
    std::unique_ptr<CBaseFrameStyle> Read(LayoutText::Element style);
    void ReadReference(const LayoutText::Element& style, CBaseFrameStyle& read);
    bool ReadLine(const LayoutText::Element& style, CBaseFrameStyle& read);
    void CheckLines(const CBaseFrameStyle& read, const std::vector<int>& arrPosition);

    const UnitRecords& m_own;
    const UnitRecords& m_global;
    LayoutFaults& m_faults;
};

} // namespace splitframe
