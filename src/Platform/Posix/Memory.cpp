#include <malloc.h>
#include <sys/mman.h>

#include <cstdint>

#include "Platform.h"

namespace Platform {

/// The C library raises this threshold each time a large block is freed, unless it is set.
void ReturnFreedMemory() noexcept {
    constexpr int kLargeBlock = 128 * 1024;
    (void)::mallopt(M_MMAP_THRESHOLD, kLargeBlock);
}

/// Only whole large pages, since advice holds for what else lies in one. It changes nothing but times,
/// so a system that takes no such advice does no harm.
void PreferLargePages(const void* begin, std::size_t size) noexcept {
    constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20U;
    const auto address = reinterpret_cast<std::uintptr_t>(begin);
    const std::uintptr_t first = (address + kLargePage - 1) / kLargePage * kLargePage;
    const std::uintptr_t last = (address + size) / kLargePage * kLargePage;
    if (first < last) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): there is no other way to round one
        (void)::madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
    }
}

}  // namespace Platform
