// Texts between UTF-8, in which most hosts think, and the UTF-16 of the interfaces.
#pragma once

#include <iterator>
#include <string>
#include <string_view>

#include "qor/basic_string_t.h"
#include "qor/utf16.h"
#include "qor/utf8.h"

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
    std::string bytes;
    bytes.reserve(utf16.size());
    while (!utf16.empty()) {
        const char32_t codePoint = detail::TakeUtf16(utf16);
        const unsigned trailing = codePoint < 0x80      ? 0
                                  : codePoint < 0x800   ? 1
                                  : codePoint < 0x10000 ? 2
                                                        : 3;
        constexpr unsigned char kLeads[] = {0x00, 0xC0, 0xE0, 0xF0};
        bytes.push_back(static_cast<char>(kLeads[trailing] | codePoint >> (6 * trailing)));
        for (unsigned left = trailing; left-- != 0;) {
            bytes.push_back(static_cast<char>(0x80U | ((codePoint >> (6 * left)) & 0x3FU)));
        }
    }
    return bytes;
}

inline std::string ToUtf8(const qor::string16_t& text) {
    return ToUtf8(text.view());
}

}  // namespace localization_manager::host
