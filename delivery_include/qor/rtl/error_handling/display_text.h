// Exceptions in words.
#pragma once

#include <string>

#include "qor/basic_string_t.h"
#include "qor/rtl/error_handling/Exception.h"

namespace qor {

/// Stands in for a text that is not there.
constexpr const char* OrNull(const char* text) noexcept {
    return text != nullptr ? text : "(null)";
}

/// Name, message and place of one exception.
/// @throws std::bad_cast when the name or the path has no wide form; std::bad_alloc.
string16_t DisplayText(const Exception& exception);

/// The narrow display texts of an exception and of what caused it, joined by ";". A text without a
/// narrow form is replaced by a remark that says so.
std::string NarrowDisplayText(const Exception& exception);

}  // namespace qor
