// Reads plural rule files.
#pragma once

#include <string_view>
#include <vector>

#include "plural/Condition.h"

namespace lm_plural {

/// By the engine's own grammar.
/// @param text  of the whole file.
/// @return empty when the engine does not accept the text, too; what is wrong with it, `lm_source`
///         tells.
std::vector<Condition> ParseRule(std::u16string_view text);

}  // namespace lm_plural
