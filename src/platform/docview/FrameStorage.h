// Tells frame objects made with new from those on the stack or inside other objects: only the former delete
// themselves. The allocation notes its block, the constructor of the frame that lies in it takes the note
// away. Process-wide state of the user-interface thread; empty except between an allocation and its
// constructor.
#pragma once

#include <cstddef>

namespace splitframe::framestorage {

void* Allocate(std::size_t nSize);
void Free(void* pBlock) noexcept;

/// Whether the object lies in a block that was allocated and not yet taken; takes it.
bool TakeAllocated(const void* pObject) noexcept;

} // namespace splitframe::framestorage
