// Any bytes as a file: loading ends with a document or with a reason.
#include "MarkupWalk.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

// A file in memory, so that the disk does not set the pace.
static int OpenMemoryFile()
{
    static const int nDescriptor = memfd_create("markup", 0);
    return nDescriptor;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const int nDescriptor = OpenMemoryFile();
    if (ftruncate(nDescriptor, 0) != 0 || pwrite(nDescriptor, pData, nSize, 0) != static_cast<ssize_t>(nSize))
        return 0;
    CString strPath;
    strPath.Format(L"/proc/self/fd/%d", nDescriptor);
    COpenMarkup markup(L"<before/>");
    const bool bLoaded = markup.Load(strPath) == 1;
    if (bLoaded != (markup.GetFailure() == CMarkup::Failure::None) ||
        bLoaded != markup.GetFailureText().IsEmpty())
        std::abort();
    WalkMarkup(markup);
    return 0;
}
