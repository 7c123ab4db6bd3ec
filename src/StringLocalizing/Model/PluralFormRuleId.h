// The key of a plural rule.
#pragma once

#include <cstdint>
#include <string>

#include "localization_manager/Culture.h"

namespace LocalizationManager::StringLocalizing::Model {

struct PluralFormRuleId {
    std::int32_t language = 0;  // a value of `localization_manager::Language`
    std::string region;         // empty for the rule of the whole language

    PluralFormRuleId() = default;
    PluralFormRuleId(localization_manager::Language language, std::string region);

    /// The id of a culture; rules do not depend on the variant.
    explicit PluralFormRuleId(const localization_manager::Culture& culture);
};

/// By language, then by region byte by byte.
bool operator<(const PluralFormRuleId& left, const PluralFormRuleId& right) noexcept;

/// The id as messages print it, for example "pt-br".
/// @throws std::range_error for an unsupported language.
std::string ToText(const PluralFormRuleId& id);

}  // namespace LocalizationManager::StringLocalizing::Model
