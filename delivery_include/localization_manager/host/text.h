// Texts between UTF-8, in which most hosts think, and the UTF-16 of the interfaces.
#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "qor/basic_string_t.h"
#include "qor/decode_utf8.h"
#include "qor/utf16.h"

namespace localization_manager::host {

namespace detail {

/// Takes one code point off the front of `units`, which is not empty. A surrogate without its
/// partner is replaced.
inline char32_t TakeUtf16(std::u16string_view& units) {
    const char32_t first = units[0];
    const char32_t second = units.size() > 1 ? units[1] : 0;
    const bool isPair = qor::IsHighSurrogate(first) && qor::IsLowSurrogate(second);
    units.remove_prefix(isPair ? 2 : 1);
    if (isPair) {
        return qor::JoinSurrogates(first, second);
    }
    return qor::IsHighSurrogate(first) || qor::IsLowSurrogate(first) ? qor::kReplacementCharacter
                                                                     : first;
}

/// So many bytes are enough for each unit.
inline constexpr std::size_t kMostUtf8PerUnit = 3;

/// @param output  room for what the units can become. Returned moved on.
inline char* EncodeUtf8(std::u16string_view units, char* output) {
    const char16_t* next = units.data();
    const char16_t* const end = next + units.size();
    while (next != end) {
        const char16_t unit = *next;
        if (unit < 0x80) {
            *output++ = static_cast<char>(unit);
            ++next;
            continue;
        }
        // Two bytes: Latin, Greek, Cyrillic, Hebrew, Arabic. The general case is slower.
        if (unit < 0x800) {
            *output++ = static_cast<char>(0xC0U | unit >> 6U);
            *output++ = static_cast<char>(0x80U | (unit & 0x3FU));
            ++next;
            continue;
        }
        std::u16string_view rest(next, static_cast<std::size_t>(end - next));
        const char32_t codePoint = TakeUtf16(rest);
        next = rest.data();
        const unsigned trailing = codePoint < 0x10000 ? 2 : 3;
        *output++ =
            static_cast<char>((trailing == 2 ? 0xE0U : 0xF0U) | codePoint >> (6 * trailing));
        for (unsigned left = trailing; left-- != 0;) {
            *output++ = static_cast<char>(0x80U | ((codePoint >> (6 * left)) & 0x3FU));
        }
    }
    return output;
}

}  // namespace detail

/// Malformed parts become U+FFFD.
inline std::u16string ToUtf16(std::string_view utf8) {
    std::u16string units;
    units.reserve(utf8.size());
    qor::DecodeUtf8(utf8, std::back_inserter(units));
    return units;
}

/// As `ToUtf16`, in the form that the interfaces take.
inline qor::string16_t ToString16(std::string_view utf8) {
    return qor::string16_t(ToUtf16(utf8));
}

/// Malformed parts become U+FFFD.
inline std::string ToUtf8(std::u16string_view utf16) {
    std::array<char, detail::kMostUtf8PerUnit * 256> brief;  // NOLINT(*-member-init): written first
    if (utf16.size() * detail::kMostUtf8PerUnit <= brief.size()) {
        return {brief.data(),
                static_cast<std::size_t>(detail::EncodeUtf8(utf16, brief.data()) - brief.data())};
    }
    std::string bytes(utf16.size() * detail::kMostUtf8PerUnit, '\0');
    bytes.resize(static_cast<std::size_t>(detail::EncodeUtf8(utf16, bytes.data()) - bytes.data()));
    return bytes;
}

inline std::string ToUtf8(const qor::string16_t& text) {
    return ToUtf8(text.view());
}

}  // namespace localization_manager::host
