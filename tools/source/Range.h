// A part of a file.
#pragma once

#include <cstdint>

namespace lm_source {

/// Offsets of bytes from the start of the file, a byte-order mark included. `end` lies behind the
/// last byte. A range never begins or ends inside a character.
struct Range {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;

    constexpr std::uint32_t size() const noexcept { return end - begin; }
    constexpr bool empty() const noexcept { return begin == end; }
    constexpr bool operator==(Range other) const noexcept {
        return begin == other.begin && end == other.end;
    }
    constexpr bool operator!=(Range other) const noexcept { return !(*this == other); }
};

}  // namespace lm_source
