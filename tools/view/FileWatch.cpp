// Stamps from the file system.
#include "FileWatch.h"

#include <sys/stat.h>

namespace viewer {
namespace {

FileStamp ToStamp(int nResult, const struct stat& status)
{
    if (nResult != 0)
        return {};
    return {true,           status.st_dev,         status.st_ino,
            status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

} // namespace

FileStamp StampOf(const std::string& strFile)
{
    struct stat status = {};
    const int nResult = ::stat(strFile.c_str(), &status);
    return ToStamp(nResult, status);
}

FileStamp StampOf(int nDescriptor)
{
    struct stat status = {};
    const int nResult = ::fstat(nDescriptor, &status);
    return ToStamp(nResult, status);
}

bool FileWatch::HasSettledChange()
{
    const FileStamp now = StampOf(m_strFile);
    const bool bSettled = std::exchange(m_last, now) == now;
    return bSettled && now.bThere && now != m_known;
}

} // namespace viewer
