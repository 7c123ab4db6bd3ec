// Memory that the framework, or the host's allocator, could not give.
#pragma once

#include <new>

namespace qor {

/// Thrown where the framework itself asks for memory. Its text, which reports show, is the same
/// with every compiler's library; a library's own `std::bad_alloc` keeps the text that it has.
class BadAllocation : public std::bad_alloc {
public:
    const char* what() const noexcept override { return "bad allocation"; }
};

}  // namespace qor
