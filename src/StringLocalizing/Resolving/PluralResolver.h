// Chooses a plural form by the number that a parameter holds and the rule of the culture.
#pragma once

#include <boost/shared_ptr.hpp>

#include "IParamResolver.h"
#include "IPluralFormRules.h"
#include "IPluralResolver.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class PluralResolver : public IPluralResolver {
public:
    /// @throws a contract exception for a null pointer; what the rules throw.
    PluralResolver(boost::shared_ptr<IParamResolver> paramResolver,
                   const Model::PluralFormRuleId& ruleId,
                   const boost::shared_ptr<Model::IPluralFormRules>& pluralFormRules);
    PluralResolver(const PluralResolver&) = delete;
    PluralResolver& operator=(const PluralResolver&) = delete;

    /// @throws boost::bad_lexical_cast when the parameter's text is no 64-bit integer;
    ///         std::logic_error when no entry of the rule holds for it; what the parameter resolver
    ///         throws.
    std::uint16_t Resolve(std::u16string_view paramName) override;
    std::uint16_t GetFormCount() override;

private:
    boost::shared_ptr<IParamResolver> paramResolver_;
    Model::PluralFormRuleId ruleId_;
    Model::PluralFormRule rule_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
