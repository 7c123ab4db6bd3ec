// Host objects that hide no race of the module.
#pragma once

#include <atomic>
#include <cstdint>

namespace lm_test {

/// Counts the references of a host object without ordering memory accesses, as nothing binds a host to
/// do, so that the thread sanitizer sees what the module itself orders.
template <class HostObject>
class Unordered : public HostObject {
public:
    using HostObject::HostObject;

    std::uint32_t AddRef() override {
        return references_.fetch_add(1, std::memory_order_relaxed) + 1;
    }

    std::uint32_t Release() override {
        const std::uint32_t left = references_.fetch_sub(1, std::memory_order_relaxed) - 1;
        if (left == 0) {
            delete this;
        }
        return left;
    }

private:
    std::atomic<std::uint32_t> references_{1};
};

/// The present reference count of an object.
template <class Object>
std::uint32_t References(Object& object) {
    object.AddRef();
    return object.Release();
}

}  // namespace lm_test
