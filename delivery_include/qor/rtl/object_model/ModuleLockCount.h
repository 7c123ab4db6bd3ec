// How many objects and factories of this module are alive.
#pragma once

#include <atomic>
#include <cstdint>

namespace qor {

/// The host may unload the module while the count is zero.
class ModuleLockCount {
public:
    static void Increment() noexcept { count_.fetch_add(1, std::memory_order_relaxed); }
    static void Decrement() noexcept { count_.fetch_sub(1, std::memory_order_acq_rel); }
    static std::uint32_t Get() noexcept { return count_.load(std::memory_order_acquire); }

private:
    static inline std::atomic<std::uint32_t> count_{0};
};

/// Counts an object for as long as it lives; a base of every object, constructed first and
/// destroyed last.
template <class T>
class ObjectModuleAutoLockTyped {
public:
    ObjectModuleAutoLockTyped() noexcept { ModuleLockCount::Increment(); }
    ObjectModuleAutoLockTyped(const ObjectModuleAutoLockTyped&) = delete;
    ObjectModuleAutoLockTyped& operator=(const ObjectModuleAutoLockTyped&) = delete;

protected:
    ~ObjectModuleAutoLockTyped() { ModuleLockCount::Decrement(); }
};

}  // namespace qor
