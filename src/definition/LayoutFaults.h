// Tells the diagnostics hook what the loader tolerates. Remembers which frame, style and unit is being read,
// so that the reader's steps name only what is wrong and where.
#pragma once

#include "platform/base/String.h"

#include <unordered_set>

namespace splitframe {

class LayoutFaults
{
public:
    CString strFrame; // being read; empty in the global section
    CString strStyle; // being read; empty outside of styles

    /// @param nPosition  character index into the text
    void Report(const CString& strMessage, const CString& strName, int nPosition) const;
};

/// Notices names that are given twice within one list.
class UniqueNames
{
public:
    /// @return false when the name was added before
    bool Add(const CString& strName) { return m_setName.insert(strName).second; }

private:
    std::unordered_set<CString> m_setName;
};

} // namespace splitframe
