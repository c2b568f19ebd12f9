// The layout file as it was last read and found good. Reading it again either replaces it whole or, when the
// file is broken, leaves it as it was.
#pragma once

#include "FileWatch.h"
#include "LayoutFile.h"
#include "Messages.h"

#include <memory>
#include <string>

namespace viewer {

class LayoutSource
{
public:
    LayoutSource(std::string strFile, Messages& messages);
    /// Faults are no longer looked for in the layout; places in it can still be told.
    ~LayoutSource();
    LayoutSource(const LayoutSource&) = delete;
    LayoutSource& operator=(const LayoutSource&) = delete;

    /// Reads the file. @return false when that can't be done, which is told as an error; then nothing changes
    bool Read();

    /// The layout that was read last. Only after a Read that succeeded.
    LayoutFile& Get() { return *m_pLayout; }

    const std::string& GetFile() const { return m_strFile; }

    /// The version of the file that was met last, good or broken.
    const FileStamp& GetStamp() const { return m_stamp; }

private:
    std::string m_strFile;
    Messages& m_messages;
    std::unique_ptr<LayoutFile> m_pLayout;
    FileStamp m_stamp;
};

} // namespace viewer
