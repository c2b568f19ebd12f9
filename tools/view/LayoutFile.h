// The layout file as text: reads it, says why it can't be read, and gathers the class GUIDs that stand in it.
// Knows markup, nothing of frames.
#pragma once

#include "FaultPlaces.h"
#include "Messages.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "xml/Markup.h"

#include <string>
#include <vector>

namespace viewer {

class LayoutFile
{
public:
    /// Reads and parses a file and tells the messages its text, so that positions in it become lines.
    /// @param strFile  the path's bytes
    /// @return false when it can't be read or parsed, which is told as an error
    bool Read(const std::string& strFile, Messages& messages);

    /// The text as it was parsed.
    const CString& GetText() const { return m_markup.GetDoc(); }

    /// Every GUID that stands in the file, of units and of helpers, each once, and the zero GUID, which text
    /// that is no GUID counts as.
    const std::vector<GUID>& GetClasses() const { return m_classes; }

    /// Where what a fault names stands in the text, or -1.
    int FindPlace(const Diagnostic& fault) { return FindFaultPlace(m_markup, fault); }

private:
    CMarkup m_markup;
    std::vector<GUID> m_classes;
};

} // namespace viewer
