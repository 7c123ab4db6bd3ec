// Numbers as text, free of any locale.
#pragma once

#include <cstdint>
#include <string_view>

#include "qor/basic_string_t.h"

namespace qor {

struct NumberFormat {
    std::uint32_t width = 0;      // least number of characters
    std::uint32_t base = 10;      // 2 to 36; digits are lower case
    std::int32_t precision = -1;  // unused by integers
    std::int32_t alignment = 1;   // > 0 pads in front, 0 between prefix and digits, < 0 behind
    char32_t fill = U' ';         // pads
    bool alternateForm = false;   // "0x" for base 16, "0" for base 8, unless a prefix is given
};

/// @param prefix  put in front of the digits; empty for what the format asks for.
void AppendNumber(string16_t& text, std::uint32_t value, std::u16string_view prefix,
                  const NumberFormat& format);

}  // namespace qor
