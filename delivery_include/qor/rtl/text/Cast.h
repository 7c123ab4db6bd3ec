// Conversions between framework texts, standard texts, wide and narrow.
#pragma once

#include <string>
#include <string_view>

#include "qor/basic_string_t.h"

namespace qor::text {

/// Converts `source` to `Target`. Wide to wide and narrow to narrow copy the units. Between wide
/// and narrow, the narrow side is in the multibyte encoding of the C runtime's current locale.
/// Framework strings are made in storage of the process heap.
/// @throws std::bad_alloc, as `BadAllocation` when the conversion itself had no memory;
///         std::bad_cast when a character has no form on the other side.
template <class Target>
Target Cast(std::u16string_view source) = delete;
template <class Target>
Target Cast(std::string_view source) = delete;

template <>
inline string16_t Cast<string16_t>(std::u16string_view source) {
    return string16_t(source);
}
template <>
inline std::u16string Cast<std::u16string>(std::u16string_view source) {
    return std::u16string(source);
}
template <>
inline string8_t Cast<string8_t>(std::string_view source) {
    return string8_t(source);
}
template <>
std::u16string Cast<std::u16string>(std::string_view source);
template <>
string16_t Cast<string16_t>(std::string_view source);
template <>
std::string Cast<std::string>(std::u16string_view source);
template <>
string8_t Cast<string8_t>(std::u16string_view source);

}  // namespace qor::text
