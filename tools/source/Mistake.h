// What is wrong with the syntax of a file.
#pragma once

#include <cstdint>

#include "source/Range.h"

namespace lm_source {

enum class MistakeKind : std::uint8_t {
    MissingEquals,     // after a key; a string before the key may lack its closing quote
    MissingValue,      // after "=", or where a form has to be
    NoEntry,           // between entries stands what begins none, or a "+" that leads to nothing
    UnclosedString,    // found at the end of the file
    MissingName,       // after "$"
    MissingParameter,  // after "{"
    MissingColon,      // after the parameter of "{"
    MissingBrace,      // after a form: neither "," nor "}"
    TooManyForms,      // a "," after the last form that there can be
    NestedTooDeep,     // a "{" inside too many others
    DuplicateKey,      // an earlier entry has the key, perhaps in other letter case
};

struct Mistake {
    MistakeKind kind{};

    /// What stands at the place that the engine reports, up to the end of the line; empty at the end
    /// of a line or of the file. Of a duplicate the key, for which the engine reports no place.
    Range range;

    /// Of a duplicate the first key, of an unclosed string its opening quote; else empty.
    Range other;

    /// Where the entry begins in which the engine meets the mistake.
    std::uint32_t entry = 0;
};

}  // namespace lm_source
