// Any text as markup: parsing ends, and everything that was found can be read.
#include "MarkupWalk.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const CString strText = CString::FromUtf8({reinterpret_cast<const char*>(pData), nSize});
    COpenMarkup markup(strText);
    WalkMarkup(markup);
    // Whole characters instead of units give the same document.
    if (!(CMarkup(strText.ToWide().c_str()).GetDoc() == markup.GetDoc()))
        std::abort();
    return 0;
}
