// The plural rule that a tree gives a culture.
#pragma once

#include <optional>

#include "plural/PluralRule.h"
#include "tree/Tree.h"

namespace lm_plural {

struct CultureRule {
    PluralRule rule;
    std::optional<lm_tree::FileId> file;  // empty for one of the engine's
};

/// @param tree     null to look at no files.
/// @param culture  not the neutral texts.
/// @throws std::runtime_error when the file cannot be read or has a mistake.
CultureRule RuleOf(const lm_tree::Tree* tree, const lm_tree::CultureName& culture);

}  // namespace lm_plural
