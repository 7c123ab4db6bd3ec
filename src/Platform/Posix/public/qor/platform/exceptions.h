// Which exceptions pass between host and module on POSIX.
#pragma once

namespace qor::platform {

/// All: both share one C++ runtime.
inline constexpr bool kExceptionsPass = true;

}  // namespace qor::platform
