// Opening of files.
#include "OpenFile.h"

#include <fcntl.h>

namespace viewer {

int OpenToRead(const std::string& strFile)
{
    return ::open(strFile.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

CString WidePath(const std::string& strFile, int nDescriptor)
{
    const CString strWide = CString::FromUtf8(strFile);
    return strWide.ToUtf8() == strFile ? strWide
                                       : CString::FromUtf8("/proc/self/fd/" + std::to_string(nDescriptor));
}

} // namespace viewer
