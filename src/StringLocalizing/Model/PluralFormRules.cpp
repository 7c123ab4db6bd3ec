#include "PluralFormRules.h"

#include <boost/format.hpp>
#include <boost/make_shared.hpp>
#include <cstddef>
#include <locale>
#include <stdexcept>

#include "BuiltInPluralFormRules.h"
#include "max_forms.h"

namespace LocalizationManager::StringLocalizing::Model {

namespace {

constexpr std::size_t kMaxEntryCount = kMaxForms;

bool Always(std::int64_t /*number*/) {
    return true;
}

boost::shared_ptr<const PluralFormRules> MakeBuiltInRules() {
    const auto rules = boost::make_shared<PluralFormRules>();
    AddBuiltInPluralFormRules(*rules);
    rules->Complete();
    return rules;
}

boost::shared_ptr<PluralFormRules> CreateOverBuiltInRules() {
    static const boost::shared_ptr<const PluralFormRules> builtIn = MakeBuiltInRules();
    return boost::make_shared<PluralFormRules>(builtIn);
}

}  // namespace

PluralFormRule PluralFormRules::GetRule(const PluralFormRuleId& id) const {
    const PluralFormRule* rule = Find(id);
    if (rule == nullptr) {
        PluralFormRuleId languageId = id;
        languageId.region.clear();
        rule = Find(languageId);
    }
    if (rule == nullptr) {
        throw std::out_of_range("Rule with id '" + ToText(id) + "' not found");
    }
    return *rule;
}

std::uint16_t PluralFormRules::GetEntryCount(const PluralFormRuleId& id) const {
    return static_cast<std::uint16_t>(GetRule(id).size());
}

PluralFormRule& PluralFormRules::AddRule(localization_manager::Language language,
                                         const std::string& region) {
    const PluralFormRuleId id(language, region);
    const auto [position, isNew] = rules_.try_emplace(id);
    if (!isNew) {
        throw std::out_of_range("Rule with id '" + ToText(id) + "' already added");
    }
    return position->second;
}

void PluralFormRules::Complete() {
    for (auto& [id, rule] : rules_) {
        if (rule.size() >= kMaxEntryCount) {
            boost::format text(
                "Too many entries (%1%, but %2% maximum allowed) found in rule with id '%3%'",
                std::locale::classic());
            throw std::logic_error((text % rule.size() % kMaxEntryCount % ToText(id)).str());
        }
        rule.emplace_back(&Always);
    }
}

void PluralFormRules::SetRule(const PluralFormRuleId& id, const PluralFormRule& rule) {
    rules_[id] = rule;
}

const PluralFormRule* PluralFormRules::Find(const PluralFormRuleId& id) const {
    const auto found = rules_.find(id);
    if (found != rules_.end()) {
        return &found->second;
    }
    return others_ ? others_->Find(id) : nullptr;
}

boost::shared_ptr<IPluralFormRules> CreatePluralFormRules() {
    return CreateOverBuiltInRules();
}

boost::shared_ptr<IPluralFormRules> CreatePluralFormRules(const PluralFormRuleId& id,
                                                          const PluralFormRule& rule) {
    const auto rules = CreateOverBuiltInRules();
    rules->SetRule(id, rule);
    return rules;
}

}  // namespace LocalizationManager::StringLocalizing::Model
