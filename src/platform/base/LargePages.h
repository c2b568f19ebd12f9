// Memory in pages of 2 MB instead of 4 KB: long text that is read from end to end, large surfaces that are
// touched row by row. That takes a fraction of the page faults and of the address look-ups.
#pragma once

#include <cstddef>
#include <cstdint>

#include <sys/mman.h>

namespace splitframe {

/// Asks for large pages where memory spans whole ones; the system may decline.
inline void PreferLargePages(void* p, std::size_t nBytes)
{
    constexpr std::uintptr_t PAGE = std::uintptr_t{1} << 21;
    const std::uintptr_t nFrom = (reinterpret_cast<std::uintptr_t>(p) + PAGE - 1) & ~(PAGE - 1);
    const std::uintptr_t nEnd = (reinterpret_cast<std::uintptr_t>(p) + nBytes) & ~(PAGE - 1);
    if (nFrom < nEnd)
        ::madvise(reinterpret_cast<void*>(nFrom), nEnd - nFrom, MADV_HUGEPAGE);
}

} // namespace splitframe
