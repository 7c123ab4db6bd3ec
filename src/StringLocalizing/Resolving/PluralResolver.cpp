#include "PluralResolver.h"

#include <algorithm>
#include <boost/current_function.hpp>
#include <boost/format.hpp>
#include <boost/lexical_cast/bad_lexical_cast.hpp>
#include <charconv>
#include <locale>
#include <stdexcept>
#include <utility>

#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

namespace {

/// A decimal integer and nothing else. What `boost::lexical_cast` accepts in the classic locale; it
/// is not used itself because the process's global locale would change what it takes for a number.
std::int64_t ParseNumber(std::u16string_view text) {
    // Units beyond ASCII become a character that no number holds.
    std::string digits(text.size(), '?');
    std::transform(text.begin(), text.end(), digits.begin(),
                   [](char16_t unit) { return unit < 0x80 ? static_cast<char>(unit) : '?'; });
    const char* first = digits.data();
    const char* const last = first + digits.size();
    if (last - first > 1 && *first == '+' && first[1] != '-') {
        ++first;
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc() || end != last) {
        throw boost::bad_lexical_cast();
    }
    return number;
}

}  // namespace

PluralResolver::PluralResolver(boost::shared_ptr<IParamResolver> paramResolver,
                               const Model::PluralFormRuleId& ruleId,
                               boost::shared_ptr<Model::IPluralFormRules> pluralFormRules)
    : paramResolver_(std::move(paramResolver)),
      ruleId_(ruleId),
      pluralFormRules_(std::move(pluralFormRules)) {
    code_contracts::RequireNotNull(paramResolver_,
                                   {"paramResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    code_contracts::RequireNotNull(pluralFormRules_,
                                   {"pluralFormRules", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    try {
        rule_ = pluralFormRules_->GetRule(ruleId_);
    } catch (const std::exception&) {
        // The requests that need the rule report it.
    }
}

std::uint16_t PluralResolver::Resolve(const qor::string16_t& paramName) {
    const std::int64_t number = ParseNumber(paramResolver_->Resolve(paramName).view());
    if (!rule_) {
        pluralFormRules_->GetRule(ruleId_);  // fails as it did before
    }
    const Model::PluralFormRule& rule = rule_.value();
    const auto entry = std::find_if(rule.begin(), rule.end(),
                                    [number](const auto& condition) { return condition(number); });
    if (entry != rule.end()) {
        return static_cast<std::uint16_t>(entry - rule.begin());
    }
    boost::format text("Cannot find rule entry with id '%1%' and discriminator value %2%",
                       std::locale::classic());
    throw std::logic_error((text % Model::ToText(ruleId_) % number).str());
}

std::uint16_t PluralResolver::GetFormCount() {
    return rule_ ? static_cast<std::uint16_t>(rule_->size())
                 : pluralFormRules_->GetEntryCount(ruleId_);
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
