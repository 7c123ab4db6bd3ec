// Mutual exclusion on POSIX, that a thread may enter again while it is inside.
#pragma once

#include <mutex>

namespace qor {

/// Entered and left in scope with `std::lock_guard`.
using CriticalSection = std::recursive_mutex;

}  // namespace qor
