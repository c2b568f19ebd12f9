// Noticing that a file was changed by somebody else. Editors write in place or put a new file in the old
// one's place; both change what a file system tells of it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace viewer {

/// What tells one version of a file from the next. Two files that are not there are equal.
struct FileStamp
{
    bool bThere = false;
    std::uint64_t nDevice = 0;
    std::uint64_t nNode = 0;
    std::int64_t nSize = 0;
    std::int64_t nSeconds = 0;
    std::int64_t nNanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// The stamp of the file behind a path, links followed, or of an open one.
FileStamp StampOf(const std::string& strFile);
FileStamp StampOf(int nDescriptor);

class FileWatch
{
public:
    explicit FileWatch(std::string strFile) : m_strFile(std::move(strFile)) {}

    /// This version of the file is known.
    void SetKnown(const FileStamp& stamp) { m_known = stamp; }

    /// Asked again and again: whether the file is another than the known one, and was left alone since the
    /// call before. So a file in the middle of being written is not taken, nor is one that is not there.
    bool HasSettledChange();

private:
    std::string m_strFile;
    FileStamp m_known;
    FileStamp m_last;
};

} // namespace viewer
