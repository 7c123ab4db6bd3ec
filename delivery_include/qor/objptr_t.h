// The framework's reference-counted pointer.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace qor {

/// Holds one reference on an object, or nothing. One pointer wide. As an argument by value between
/// host and component, where the caller makes and destroys it and the callee takes a reference of
/// its own, except on Windows: see `qor/platform/object_argument.h`.
template <class Interface>
class objptr_t {
public:
    objptr_t() noexcept = default;
    objptr_t(std::nullptr_t) noexcept {}

    /// Shares the object: takes a reference of its own.
    objptr_t(Interface* object) : object_(object) {
        if (object_ != nullptr) {
            object_->AddRef();
        }
    }

    objptr_t(const objptr_t& other) : objptr_t(other.object_) {}
    objptr_t(objptr_t&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    /// An object of a class is an object of each of its interfaces.
    template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, Interface*>>>
    objptr_t(objptr_t<Derived> other) noexcept : object_(other.Detach()) {}

    ~objptr_t() {
        if (object_ != nullptr) {
            object_->Release();
        }
    }

    objptr_t& operator=(objptr_t other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller owns.
    static objptr_t Adopt(Interface* object) noexcept {
        objptr_t result;
        result.object_ = object;
        return result;
    }

    Interface* get() const noexcept { return object_; }
    Interface* operator->() const noexcept { return object_; }
    Interface& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    /// Gives the reference to the caller.
    [[nodiscard]] Interface* Detach() noexcept { return std::exchange(object_, nullptr); }

    /// The address for an out argument that stores a referenced pointer; drops what was held.
    Interface** Ref() noexcept {
        *this = objptr_t();
        return &object_;
    }

private:
    Interface* object_ = nullptr;
};

}  // namespace qor
