// The smallest parts of a file.
#pragma once

#include <cstdint>

#include "source/Range.h"

namespace lm_source {

enum class TokenKind : std::uint8_t {
    Mark,        // the byte-order mark
    WhiteSpace,  // any amount of it, line breaks included
    Comment,     // from ";" to before the end of the line
    Key,
    Equals,
    String,     // with its quotes
    Parameter,  // with its "$"
    Reference,
    Plus,
    OpenBrace,
    Colon,
    Comma,
    CloseBrace,
    Skipped,  // from a mistake on to where the next entry was found
    Padding,  // zeros at the end of the file, which the engine drops
};

struct Token {
    TokenKind kind{};
    Range range;
};

}  // namespace lm_source
