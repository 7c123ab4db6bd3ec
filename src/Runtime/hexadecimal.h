// Codes and identifiers as exception texts print them.
#pragma once

#include <cstdint>

#include "qor/basic_string_t.h"
#include "qor/rtl/error_handling/number_text.h"

namespace qor {

/// Exactly eight lower-case digits, without a prefix.
inline void AppendHexadecimal(string16_t& text, std::uint32_t value) {
    NumberFormat format;
    format.width = 8;
    format.base = 16;
    format.fill = U'0';
    AppendNumber(text, value, {}, format);
}

}  // namespace qor
