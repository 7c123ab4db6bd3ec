// Asking for memory before it is read.
#pragma once

#include <cstddef>
#include <cstdint>

namespace LocalizationManager::StringLocalizing::Model {

/// Brings so many bytes near, wherever they end: nothing is read. What lies in pieces, each of which
/// says where the next one begins, would else be waited for piece by piece.
inline void Prefetch([[maybe_unused]] const void* begin,
                     [[maybe_unused]] std::size_t size) noexcept {
#if defined(__GNUC__)
    constexpr std::uintptr_t kCacheLine = 64;
    const auto first = reinterpret_cast<std::uintptr_t>(begin);
    for (std::uintptr_t offset = 0; offset < size; offset += kCacheLine) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): arithmetic on pointers must not leave the text
        __builtin_prefetch(reinterpret_cast<const void*>(first + offset));
    }
#endif
}

}  // namespace LocalizationManager::StringLocalizing::Model
