// Mutual exclusion that a thread may enter again while it is inside.
#pragma once

#include <mutex>

namespace qor {

/// Entered and left in scope with `std::lock_guard`. The standard library's recursive mutex is what
/// every system has to offer here, so no system needs an implementation of its own.
using CriticalSection = std::recursive_mutex;

}  // namespace qor
