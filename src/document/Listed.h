// Lists of pointers against sets of them, in linear time.
#pragma once

#include "platform/base/Array.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace splitframe {

/// Takes everything out of a list that a set names, too.
template <class TYPE> void RemoveListed(CArray<TYPE*, TYPE*>& arr, const std::unordered_set<const TYPE*>& set)
{
    if (set.empty())
        return;
    const auto* pEnd = std::remove_if(arr.begin(), arr.end(), [&](const TYPE* p) { return set.contains(p); });
    arr.SetSize(static_cast<int>(pEnd - arr.begin()));
}

/// Those of the pointers that a list still names: what a host took out of the list is its own.
template <class TYPE>
std::vector<TYPE*> StillListed(const std::vector<TYPE*>& arrPointer, const CArray<TYPE*, TYPE*>& arr)
{
    if (arrPointer.empty())
        return {};
    const std::unordered_set<const TYPE*> set(arr.begin(), arr.end());
    std::vector<TYPE*> arrListed;
    std::copy_if(arrPointer.begin(), arrPointer.end(), std::back_inserter(arrListed),
                 [&](const TYPE* p) { return set.contains(p); });
    return arrListed;
}

} // namespace splitframe
