// UTF-8 as UTF-16.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "qor/utf16.h"

namespace qor {

/// Stands for what cannot be decoded.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

namespace detail {

/// What a lead byte promises: how many bytes follow, and which values the first of them may take
/// (the bounds exclude overlong forms, surrogates and what lies beyond U+10FFFF).
struct Utf8Sequence {
    unsigned trailing;
    unsigned char lowest;
    unsigned char highest;
};

constexpr Utf8Sequence Utf8SequenceOf(unsigned char lead) noexcept {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {1, 0x80, 0xBF};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return {2, static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF)};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return {3, static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF)};
    }
    return {0, 0, 0};  // a trailing byte, or one that UTF-8 never uses
}

}  // namespace detail

/// Where to cut a text in UTF-8: at a place or shortly before, so that what can be decoded together
/// stays together; at its end when it is no longer.
inline std::size_t PlaceToCutUtf8(std::string_view bytes, std::size_t place) noexcept {
    constexpr std::size_t kLongestSequence = 4;
    if (bytes.size() <= place) {
        return bytes.size();
    }
    for (std::size_t back = 0; back < std::min(kLongestSequence, place); ++back) {
        if ((static_cast<unsigned char>(bytes[place - back]) & 0xC0U) != 0x80) {
            return place - back;
        }
    }
    return place;  // so many trailing bytes belong to no sequence
}

/// Decodes UTF-8; every maximal ill-formed part becomes one U+FFFD.
/// @param output  output iterator for `char16_t` with room for a unit per byte; returned moved on.
template <class OutputIterator>
OutputIterator DecodeUtf8(std::string_view bytes, OutputIterator output) {
    const auto* next = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = next + bytes.size();
    while (next != end) {
        const unsigned char lead = *next++;
        if (lead < 0x80) {
            *output++ = lead;
            continue;
        }
        // Two bytes: Latin, Greek, Cyrillic, Hebrew, Arabic. The general case is slower.
        if (lead >= 0xC2 && lead <= 0xDF && next != end && (*next & 0xC0U) == 0x80) {
            *output++ = static_cast<char16_t>((lead & 0x1FU) << 6U | (*next++ & 0x3FU));
            continue;
        }
        const detail::Utf8Sequence sequence = detail::Utf8SequenceOf(lead);
        char32_t codePoint = lead & (0x3FU >> sequence.trailing);
        unsigned left = sequence.trailing;
        unsigned char lowest = sequence.lowest;
        unsigned char highest = sequence.highest;
        while (left != 0 && next != end && *next >= lowest && *next <= highest) {
            codePoint = codePoint << 6U | (*next++ & 0x3FU);
            lowest = 0x80;
            highest = 0xBF;
            --left;
        }
        // What was read of a sequence that broke off is one ill-formed part.
        const bool complete = sequence.trailing != 0 && left == 0;
        output = EncodeUtf16(complete ? codePoint : kReplacementCharacter, output);
    }
    return output;
}

}  // namespace qor
