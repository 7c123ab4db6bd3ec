// What a framework string knows of its character type.
#pragma once

#include <cstdint>
#include <string>

namespace qor {

/// Adds to the standard traits the bound that the 32-bit size fields put on a string's length:
/// a string stays shorter than `length_limit` characters.
template <class CharT>
struct char_traits;

template <>
struct char_traits<char> : std::char_traits<char> {
    static constexpr std::uint64_t length_limit = 0xFFFFFFFE;
};

template <>
struct char_traits<char16_t> : std::char_traits<char16_t> {
    static constexpr std::uint64_t length_limit = 0x7FFFFFFF;
};

}  // namespace qor
