// Counted pointers as arguments by value, on Windows.
#pragma once

#include <type_traits>
#include <utility>

#include "qor/objptr_t.h"

namespace qor::platform {

#ifdef _MSC_VER

/// The type of the parameter. The function destroys it, as the compiler arranges it.
template <class Interface>
using object_argument = objptr_t<Interface>;

/// The first thing that a function does with such a parameter.
template <class Interface>
objptr_t<Interface> TakeArgument(object_argument<Interface>& argument) noexcept {
    return std::move(argument);
}

#else

/// The type of the parameter: passed as the system's other compilers, which most hosts were built with, pass a
/// counted pointer. With 32 bits that is the pointer, with 64 the address of one. The function owns the
/// reference.
template <class Interface>
class object_argument {
#ifdef _WIN64
    struct Cell {
        Interface* object;
    };

public:
    /// @param cell  lives, like every temporary object, until the call is over.
    template <class Source,
              class = std::enable_if_t<std::is_convertible_v<Source, objptr_t<Interface>>>>
    object_argument(Source&& source, Cell&& cell = Cell()) noexcept
        : passed_(&cell) {  // NOLINT(bugprone-forwarding-reference-overload)
        cell.object = objptr_t<Interface>(std::forward<Source>(source)).Detach();
    }

    Interface* Detach() noexcept {
        return std::exchange(passed_->object, nullptr);
    }

private:
    Cell* passed_;
#else
public:
    template <class Source,
              class = std::enable_if_t<std::is_convertible_v<Source, objptr_t<Interface>>>>
    object_argument(Source&& source) noexcept  // NOLINT(bugprone-forwarding-reference-overload)
        : passed_(objptr_t<Interface>(std::forward<Source>(source)).Detach()) {}

    Interface* Detach() noexcept {
        return std::exchange(passed_, nullptr);
    }

private:
    Interface* passed_;
#endif
};

/// The first thing that a function does with such a parameter.
template <class Interface>
objptr_t<Interface> TakeArgument(object_argument<Interface>& argument) noexcept {
    static_assert(std::is_trivially_copyable_v<object_argument<Interface>> &&
                  sizeof(argument) == sizeof(Interface*));
    return objptr_t<Interface>::Adopt(argument.Detach());
}

#endif

}  // namespace qor::platform
