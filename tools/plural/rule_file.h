// Plural rule files for the rules of PO headers.
#pragma once

#include <optional>
#include <string>

#include "plural/plural_forms.h"

namespace lm_plural {

/// The rule file that chooses the same forms.
/// @return empty for a rule that such a file cannot say: with more than five forms, or that computes
///         more than remainders.
std::optional<std::string> RuleFileOf(const PluralForms& forms);

}  // namespace lm_plural
