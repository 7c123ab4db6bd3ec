// Chooses a plural form by the number that a parameter holds and the rule of the culture.
#pragma once

#include <boost/shared_ptr.hpp>
#include <optional>

#include "IParamResolver.h"
#include "IPluralFormRules.h"
#include "IPluralResolver.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class PluralResolver : public IPluralResolver {
public:
    PluralResolver(boost::shared_ptr<IParamResolver> paramResolver,
                   const Model::PluralFormRuleId& ruleId,
                   boost::shared_ptr<Model::IPluralFormRules> pluralFormRules);
    PluralResolver(const PluralResolver&) = delete;
    PluralResolver& operator=(const PluralResolver&) = delete;

    /// @throws boost::bad_lexical_cast when the parameter's text is no 64-bit integer;
    ///         std::logic_error when no entry of the rule holds for it; what the parameter resolver
    ///         and the rules throw.
    std::uint16_t Resolve(const qor::string16_t& paramName) override;
    std::uint16_t GetFormCount() override;

private:
    boost::shared_ptr<IParamResolver> paramResolver_;
    Model::PluralFormRuleId ruleId_;
    boost::shared_ptr<Model::IPluralFormRules> pluralFormRules_;
    std::optional<Model::PluralFormRule> rule_;  // empty when it cannot be fetched
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
