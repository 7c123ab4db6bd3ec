// Changes that mend what is wrong at a place.
#pragma once

#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// The changes for what is found between two offsets of a file, each whole: the editor makes it, and
/// nothing else has to be done.
/// @param diagnostics  what the editor knows to be wrong there.
Json CodeActionsFor(const Target& target, lm_source::Range range, const Json& diagnostics);

}  // namespace lm_lsp
