#include "Platform.h"

namespace Platform {

/// The system's heap does so by itself.
void ReturnFreedMemory() noexcept {}

/// Large pages need a privilege here.
void PreferLargePages(const void* /*begin*/, std::size_t /*size*/) noexcept {}

}  // namespace Platform
