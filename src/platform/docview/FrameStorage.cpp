// Knows addresses only. A constructor that throws before the frame's own has run leaves its note to Free.
#include "platform/docview/FrameStorage.h"

#include <algorithm>
#include <functional>
#include <new>
#include <vector>

namespace splitframe::framestorage {
namespace {

struct Block
{
    const std::byte* pBegin;
    const std::byte* pEnd;
};

// A new expression may make another frame while its arguments are computed: hence several.
std::vector<Block>& PendingBlocks()
{
    static std::vector<Block> arrBlock;
    return arrBlock;
}

bool Contains(const Block& block, const void* pObject)
{
    const std::less<> before;
    return !before(pObject, static_cast<const void*>(block.pBegin)) &&
           before(pObject, static_cast<const void*>(block.pEnd));
}

} // namespace

void* Allocate(std::size_t nSize)
{
    PendingBlocks().reserve(PendingBlocks().size() + 1);
    auto* pBlock = static_cast<std::byte*>(::operator new(nSize));
    PendingBlocks().push_back({pBlock, pBlock + nSize});
    return pBlock;
}

void Free(void* pBlock) noexcept
{
    std::erase_if(PendingBlocks(), [pBlock](const Block& block) { return block.pBegin == pBlock; });
    ::operator delete(pBlock);
}

bool TakeAllocated(const void* pObject) noexcept
{
    auto& arrBlock = PendingBlocks();
    const auto found =
        std::ranges::find_if(arrBlock, [pObject](const Block& block) { return Contains(block, pObject); });
    if (found == arrBlock.end())
        return false;
    arrBlock.erase(found);
    return true;
}

} // namespace splitframe::framestorage
