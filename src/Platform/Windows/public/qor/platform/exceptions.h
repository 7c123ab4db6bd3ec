// Which exceptions pass between host and module on Windows.
#pragma once

namespace qor::platform {

/// None: either has a C++ runtime of its own, which does not know what the other one throws. What would let an
/// exception out answers a code instead.
inline constexpr bool kExceptionsPass = false;

}  // namespace qor::platform
