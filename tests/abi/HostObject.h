// An object of the host, as the module sees it.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <initializer_list>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Interface.h"

namespace abi_host {

using Slot = void (*)();

/// Makes the table entry of a member function: a function that takes the object first.
template <auto Operation>
struct Entry;
template <class Class, class Return, class... Arguments, Return (Class::*Operation)(Arguments...)>
struct Entry<Operation> {
    static Return Run(Class* self, Arguments... arguments) {
        return (self->*Operation)(arguments...);
    }
    operator Slot() const { return reinterpret_cast<Slot>(&Run); }
};

inline constexpr auto kRelaxed = std::memory_order_relaxed;

/// An object of the host. It lives in its scope; its count only tells who holds on to it, and orders
/// no memory accesses, lest it hide a race of the module.
class HostObject {
    const Slot* table_;  // the first word of every object

public:
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    std::uint32_t AddRef() { return references_.fetch_add(1, kRelaxed) + 1; }
    std::uint32_t Release() { return references_.fetch_sub(1, kRelaxed) - 1; }
    std::uint32_t References() const { return references_; }

    /// What the object was told since the last call, each in a line.
    std::string Take() { return std::exchange(told_, ""); }

    /// Makes the operations throw.
    bool throws = false;

protected:
    /// @param operations  the slots after the three that every object has.
    explicit HostObject(std::initializer_list<Slot> operations)
        : slots_{Entry<&HostObject::AddRef>(), Entry<&HostObject::Release>(),
                 Entry<&HostObject::Forbidden>()} {
        slots_.insert(slots_.end(), operations);
        table_ = slots_.data();
    }
    ~HostObject() { EXPECT_EQ(references_, 1U) << "somebody still holds a host object"; }

    /// For the slots that the module never calls.
    Result Forbidden() {
        ADD_FAILURE() << "a slot that the module never calls";
        return kNotSupported;
    }

    void Remember(std::string_view told) {
        const std::lock_guard<std::mutex> lock(mutex_);
        told_.append(told).append("\n");
    }
    void MaybeThrow() const {
        if (throws) {
            throw std::runtime_error("host failed");
        }
    }

private:
    std::vector<Slot> slots_;
    std::atomic<std::uint32_t> references_{1};
    std::mutex mutex_;
    std::string told_;
};

}  // namespace abi_host
