// The layout file as text: reads it, says why it can't be read, and gathers the class GUIDs that stand in it.
// Knows markup, nothing of frames.
#pragma once

#include "FaultPlaces.h"
#include "FileWatch.h"
#include "Messages.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "xml/FileText.h"
#include "xml/Markup.h"

#include <memory>
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

    /// Makes this the text that positions in messages refer to.
    void TellPlaces(Messages& messages);

    /// The version of the file that was read, or that could not be.
    const FileStamp& GetStamp() const { return m_stamp; }

    /// The text as it was parsed.
    CString GetText() const { return m_markup.GetDoc(); }

    /// The text as elements; whoever moves its cursors leaves none set.
    CMarkup& GetMarkup() { return m_markup; }

    /// The file's bytes. Only after a Read that succeeded.
    const FileText& GetFileText() const { return *m_pFileText; }

    /// Every GUID that stands in the file, of units and of helpers, each once, and the zero GUID, which text
    /// that is no GUID counts as.
    const std::vector<GUID>& GetClasses() const { return m_classes; }

    /// Where what a fault names stands in the text, or -1.
    int FindPlace(const Diagnostic& fault) { return FindFaultPlace(m_markup, fault); }

private:
    bool Parse(const CString& strPath, const std::string& strHint, Messages& messages);

    FileStamp m_stamp;
    std::unique_ptr<FileText> m_pFileText;
    CMarkup m_markup;
    std::vector<GUID> m_classes;
};

} // namespace viewer
