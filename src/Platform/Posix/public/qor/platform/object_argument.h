// Counted pointers as arguments by value, on POSIX.
#pragma once

#include <utility>

#include "qor/objptr_t.h"

namespace qor::platform {

/// The type of the parameter. The caller makes and destroys it.
template <class Interface>
using object_argument = objptr_t<Interface>;

/// The first thing that a function does with such a parameter.
template <class Interface>
objptr_t<Interface> TakeArgument(object_argument<Interface>& argument) noexcept {
    return std::move(argument);
}

}  // namespace qor::platform
