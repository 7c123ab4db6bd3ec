// UTF-8 decoding on POSIX.
#include <cstdint>

#include "Platform.h"

namespace Platform {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

/// What a lead byte promises: how many bytes follow, and which values the first of them may take
/// (the bounds exclude overlong forms, surrogates and what lies beyond U+10FFFF).
struct Sequence {
    unsigned trailing;
    unsigned char lowest;
    unsigned char highest;
};

constexpr Sequence SequenceOf(unsigned char lead) noexcept {
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

char16_t* Append(char16_t* output, std::uint32_t codePoint) noexcept {
    if (codePoint < 0x10000) {
        *output++ = static_cast<char16_t>(codePoint);
    } else {
        *output++ = static_cast<char16_t>(0xD7C0 + (codePoint >> 10U));
        *output++ = static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU));
    }
    return output;
}

}  // namespace

std::size_t DecodeUtf8(std::string_view bytes, char16_t* output) {
    const char16_t* const start = output;
    const auto* next = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = next + bytes.size();
    while (next != end) {
        const unsigned char lead = *next++;
        if (lead < 0x80) {
            *output++ = lead;
            continue;
        }
        const Sequence sequence = SequenceOf(lead);
        std::uint32_t codePoint = lead & (0x3FU >> sequence.trailing);
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
        output = Append(output, complete ? codePoint : kReplacement);
    }
    return static_cast<std::size_t>(output - start);
}

}  // namespace Platform
