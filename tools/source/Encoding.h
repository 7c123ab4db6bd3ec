// How the text of a file is encoded.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "source/Range.h"

namespace lm_source {

/// What the engine makes of the bytes of a file.
struct Encoding {
    /// What it reads: the file without a byte-order mark and zeros at the end. A file of zeros only
    /// keeps them.
    Range content;

    /// A byte-order mark of UTF-16, or a zero beside the first letter. The engine reads such a file
    /// as UTF-8 all the same, so that its mistakes mean little.
    bool isUtf16 = false;

    /// Every maximal part that is not UTF-8; each becomes one U+FFFD.
    std::vector<Range> illFormed;
};

Encoding EncodingOf(std::string_view bytes);

/// A character, or a maximal part that is not UTF-8.
struct Character {
    std::uint32_t bytes;
    std::uint32_t units;  // of UTF-16
    char16_t firstUnit;
    bool isIllFormed;
};

/// The first character of bytes that are not empty.
Character FirstCharacter(std::string_view bytes);

/// How many units of UTF-16 bytes become.
std::uint32_t CountUnits(std::string_view bytes);

}  // namespace lm_source
