#include "PluralResolver.h"

#include <algorithm>
#include <boost/current_function.hpp>
#include <boost/format.hpp>
#include <boost/lexical_cast/bad_lexical_cast.hpp>
#include <limits>
#include <locale>
#include <stdexcept>
#include <utility>

#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

namespace {

/// A decimal integer and nothing else. What `boost::lexical_cast` accepts in the classic locale; it
/// is not used itself because the process's global locale would change what it takes for a number.
std::int64_t ParseNumber(std::u16string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    const bool isNegative = !text.empty() && text.front() == u'-';
    if (isNegative || (!text.empty() && text.front() == u'+')) {
        text.remove_prefix(1);
    }
    bool isNumber = !text.empty();
    std::int64_t negated = 0;  // reaches further than the number itself
    for (const char16_t unit : text) {
        const int digit = unit - u'0';
        isNumber = isNumber && digit >= 0 && digit <= 9 && negated >= Limits::min() / 10 &&
                   10 * negated >= Limits::min() + digit;
        negated = isNumber ? 10 * negated - digit : 0;
    }
    if (!isNumber || (!isNegative && negated == Limits::min())) {
        throw boost::bad_lexical_cast();
    }
    return isNegative ? negated : -negated;
}

}  // namespace

PluralResolver::PluralResolver(boost::shared_ptr<IParamResolver> paramResolver,
                               const Model::PluralFormRuleId& ruleId,
                               const boost::shared_ptr<Model::IPluralFormRules>& pluralFormRules)
    : paramResolver_(std::move(paramResolver)), ruleId_(ruleId) {
    code_contracts::RequireNotNull(paramResolver_,
                                   {"paramResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    code_contracts::RequireNotNull(pluralFormRules,
                                   {"pluralFormRules", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    rule_ = pluralFormRules->GetRule(ruleId_);
}

std::uint16_t PluralResolver::Resolve(std::u16string_view paramName) {
    ResolvedText digits;
    paramResolver_->Resolve(paramName, digits);
    const std::int64_t number = ParseNumber(digits.view());
    const auto entry = std::find_if(rule_.begin(), rule_.end(),
                                    [number](const auto& condition) { return condition(number); });
    if (entry != rule_.end()) {
        return static_cast<std::uint16_t>(entry - rule_.begin());
    }
    boost::format text("Cannot find rule entry with id '%1%' and discriminator value %2%",
                       std::locale::classic());
    throw std::logic_error((text % Model::ToText(ruleId_) % number).str());
}

std::uint16_t PluralResolver::GetFormCount() {
    return static_cast<std::uint16_t>(rule_.size());
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
