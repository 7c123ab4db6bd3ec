// What is told of a place.
#pragma once

#include <cstdint>

#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// Of a key or reference the final text in every culture, as the engine makes it of the texts as typed,
/// at numbers that choose each form; of a parameter where it is used; in a form the numbers that choose
/// it. Null where there is nothing to tell.
Json HoverAt(const Target& target, std::uint32_t offset);

}  // namespace lm_lsp
