// The tokens of a file.
#pragma once

#include <vector>

#include "source/Document.h"
#include "source/Token.h"

namespace lm_source {

/// All tokens of a file. Put together in their order they are the file, byte for byte.
std::vector<Token> TokensOf(const Document& document);

/// The tokens from a place between entries, or from an entry's start, on to another.
std::vector<Token> TokensOf(const Document& document, Range range);

}  // namespace lm_source
