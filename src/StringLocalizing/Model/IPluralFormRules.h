// The plural rules of all languages.
#pragma once

#include <cstdint>

#include "PluralFormRule.h"
#include "PluralFormRuleId.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Immutable; may be read from any number of threads.
class IPluralFormRules {
public:
    /// A copy of the rule of the id, or else of its language.
    /// @throws std::out_of_range when there is neither; std::range_error when the language is not
    ///         supported at all.
    virtual PluralFormRule GetRule(const PluralFormRuleId& id) const = 0;

    /// The number of entries of that rule; fails in the same way.
    virtual std::uint16_t GetEntryCount(const PluralFormRuleId& id) const = 0;

    virtual ~IPluralFormRules() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Model
