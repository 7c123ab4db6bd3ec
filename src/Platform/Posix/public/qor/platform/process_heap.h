// The process heap on POSIX. Host and component share it, because either may have to free the
// storage of a string that the other one filled; the strings are header code, and so is this.
#pragma once

#include <cstddef>
#include <cstdlib>

namespace qor::platform {

/// Null when memory ran out.
inline void* AllocateFromProcessHeap(std::size_t size) noexcept {
    return std::malloc(size);
}

inline void FreeToProcessHeap(void* pointer) noexcept {
    std::free(pointer);
}

}  // namespace qor::platform
