// What may be written at a place.
#pragma once

#include <cstdint>

#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// At the start of a line keys that the file lacks, with the text of the reference; in a value keys of
/// the file and common ones, parameters of the reference text, and plural forms with as many forms as
/// the language has. Nothing in strings and comments.
/// @param takesSnippets  whether the editor understands places to fill in.
Json CompletionAt(const Target& target, std::uint32_t offset, bool takesSnippets);

}  // namespace lm_lsp
