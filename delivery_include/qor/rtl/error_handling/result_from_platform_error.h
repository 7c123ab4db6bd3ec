// Result codes from the platform layer's error numbers.
#pragma once

#include <cstdint>

#include "qor/result_codes.h"

namespace qor {

/// Maps an error number of the platform layer, which speaks in Windows error numbers. Numbers that
/// have no code of their own pass through in the 0x8007 family.
result_t ResultFromPlatformError(std::uint32_t error) noexcept;

}  // namespace qor
