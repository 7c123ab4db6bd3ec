// Reference counting, interface queries, creation and destruction, written once for all classes.
#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

#include "qor/IObject.h"
#include "qor/result_codes.h"
#include "qor/rtl/object_model/ModuleLockCount.h"

namespace qor {

/// The most derived class of every object. `T` has the behaviour and names its interfaces in an
/// `InterfaceList` called `Interfaces`; `Creation` is the policy that makes objects and gives their
/// memory back. One reference count serves all interfaces of the object.
template <class T, class Creation>
class Object final : private ObjectModuleAutoLockTyped<T>, public T {
public:
    template <class... Arguments>
    explicit Object(Arguments&&... arguments) : T(std::forward<Arguments>(arguments)...) {}

    /// Makes an object with one reference; see the creation policy for arguments and results.
    template <class... Arguments>
    static result_t CreateInstance(Arguments&&... arguments) {
        return Creation::template Create<Object>(std::forward<Arguments>(arguments)...);
    }

    std::uint32_t AddRef() override {
        return references_.fetch_add(1, std::memory_order_relaxed) + 1;
    }

    std::uint32_t Release() override {
        const std::uint32_t left = references_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (left == 0) {
            Creation::Destroy(this);
        }
        return left;
    }

    result_t QueryInterface(std::uint32_t interfaceId, void** out) override {
        return T::Interfaces::Query(*this, interfaceId, out);
    }

private:
    friend Creation;
    ~Object() = default;

    std::atomic<std::uint32_t> references_{1};
};

/// What `CreateInstance` has come to: without an object it has failed, whatever code it answered.
inline result_t ResultOfCreation(result_t code, const void* object) noexcept {
    return object == nullptr && !Failed(code) ? rcUnexpected : code;
}

}  // namespace qor
