// Copying and rethrowing, written once for all framework exceptions.
#pragma once

#include <memory>

#include "qor/rtl/error_handling/Exception.h"

namespace qor {

/// Implements `Rethrow` and `Clone` of `Derived`, which names itself and the class it extends.
template <class Derived, class Base>
class ExceptionBase : public Base {
public:
    using Base::Base;

    [[noreturn]] void Rethrow() const override {
        throw Derived(static_cast<const Derived&>(*this));
    }

    std::unique_ptr<Exception> Clone() const override {
        return std::make_unique<Derived>(static_cast<const Derived&>(*this));
    }
};

}  // namespace qor
