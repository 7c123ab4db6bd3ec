// The process heap on Windows. Host and component share it, because either may have to free the
// storage of a string that the other one filled; the strings are header code, and so is this.
#pragma once

#include <cstddef>

namespace qor::platform {

namespace detail {

// As the system's own header declares them, which no host has to include for this one.
extern "C" {
__declspec(dllimport) void* __stdcall GetProcessHeap();
__declspec(dllimport) void* __stdcall HeapAlloc(void* heap, unsigned long flags, std::size_t size);
__declspec(dllimport) int __stdcall HeapFree(void* heap, unsigned long flags, void* block);
}

}  // namespace detail

/// Null when memory ran out.
inline void* AllocateFromProcessHeap(std::size_t size) noexcept {
    return detail::HeapAlloc(detail::GetProcessHeap(), 0, size);
}

inline void FreeToProcessHeap(void* pointer) noexcept {
    detail::HeapFree(detail::GetProcessHeap(), 0, pointer);
}

}  // namespace qor::platform
