#include "PluralFormRuleId.h"

#include <tuple>
#include <utility>

#include "CultureNames.h"

namespace LocalizationManager::StringLocalizing::Model {

using localization_manager::Language;

PluralFormRuleId::PluralFormRuleId(Language languageOfRule, std::string regionOfRule)
    : language(static_cast<std::int32_t>(languageOfRule)), region(std::move(regionOfRule)) {}

PluralFormRuleId::PluralFormRuleId(const localization_manager::Culture& culture)
    : PluralFormRuleId(culture.language, std::string(culture.region.view())) {}

bool operator<(const PluralFormRuleId& left, const PluralFormRuleId& right) noexcept {
    return std::tie(left.language, left.region) < std::tie(right.language, right.region);
}

std::string ToText(const PluralFormRuleId& id) {
    return localization_manager::CultureToName(static_cast<Language>(id.language), id.region);
}

}  // namespace LocalizationManager::StringLocalizing::Model
