// Result codes from, and for, the outside.
#pragma once

#include <cstdint>

#include "qor/basic_string_t.h"
#include "qor/result_codes.h"

namespace qor {

/// The message of a code as framework text, in storage of the process heap.
string16_t GetResultCodeMessage(result_t code);

/// Maps an error number of the platform layer, which speaks in Windows error numbers. Numbers that
/// have no code of their own pass through in the 0x8007 family.
result_t ResultFromPlatformError(std::uint32_t error) noexcept;

}  // namespace qor
