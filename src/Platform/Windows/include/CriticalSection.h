// Mutual exclusion on Windows, that a thread may enter again while it is inside.
#pragma once

#include <cstddef>

namespace qor {

/// The system's critical section; entered and left in scope with `std::lock_guard`.
class CriticalSection {
public:
    CriticalSection() noexcept;
    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;
    ~CriticalSection();

    void lock() noexcept;
    void unlock() noexcept;

private:
    alignas(void*) std::byte system_[8 + 4 * sizeof(void*)];
};

}  // namespace qor
