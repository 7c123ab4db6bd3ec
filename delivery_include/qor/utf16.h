// Code points as UTF-16 units.
#pragma once

namespace qor {

constexpr bool IsHighSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Writes a code point as one unit or as a surrogate pair.
/// @param output  an output iterator for `char16_t`. Returned moved on.
template <class OutputIterator>
OutputIterator EncodeUtf16(char32_t codePoint, OutputIterator output) {
    if (codePoint < 0x10000) {
        *output++ = static_cast<char16_t>(codePoint);
    } else {
        *output++ = static_cast<char16_t>(0xD7C0 + (codePoint >> 10U));
        *output++ = static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU));
    }
    return output;
}

/// The code point of a surrogate pair.
constexpr char32_t JoinSurrogates(char32_t high, char32_t low) noexcept {
    return 0x10000 + ((high - 0xD800) << 10U) + (low - 0xDC00);
}

}  // namespace qor
