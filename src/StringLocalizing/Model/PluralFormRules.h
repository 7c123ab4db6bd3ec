// The plural rules of all languages, held in a map.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <utility>

#include "IPluralFormRules.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Has rules of its own, and knows those of others behind them.
class PluralFormRules : public IPluralFormRules {
public:
    /// @param others  asked for the ids that have no rule here; may be null.
    explicit PluralFormRules(boost::shared_ptr<const PluralFormRules> others = nullptr)
        : others_(std::move(others)) {}
    PluralFormRules(const PluralFormRules&) = delete;
    PluralFormRules& operator=(const PluralFormRules&) = delete;

    PluralFormRule GetRule(const PluralFormRuleId& id) const override;
    std::uint16_t GetEntryCount(const PluralFormRuleId& id) const override;

    /// Adds an empty rule and returns it for filling.
    /// @throws std::out_of_range when the id has a rule already.
    PluralFormRule& AddRule(localization_manager::Language language, const std::string& region);

    /// Appends to every rule of its own the entry that always holds.
    /// @throws std::logic_error when a rule would get more entries than a text can have forms.
    void Complete();

    /// Puts a rule in place of the one that the id has, if any.
    void SetRule(const PluralFormRuleId& id, const PluralFormRule& rule);

private:
    /// Null when there is none for exactly this id.
    const PluralFormRule* Find(const PluralFormRuleId& id) const;

    boost::shared_ptr<const PluralFormRules> others_;
    std::map<PluralFormRuleId, PluralFormRule> rules_;
};

/// The built-in rules. All objects share them, so that one costs next to nothing.
boost::shared_ptr<IPluralFormRules> CreatePluralFormRules();

/// The built-in rules, with `rule` under `id`; it gets no entry that always holds.
boost::shared_ptr<IPluralFormRules> CreatePluralFormRules(const PluralFormRuleId& id,
                                                          const PluralFormRule& rule);

}  // namespace LocalizationManager::StringLocalizing::Model
