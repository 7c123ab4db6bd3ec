// How the engine builds the conditions of plural rule files. They hold no reference to the text.
#pragma once

#include <boost/function.hpp>
#include <cstdint>
#include <vector>

#include "CompareOperator.h"
#include "PluralFormRule.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// For the grammar, which can fill other records of a rule by other actions.
struct PluralFormRulesActions {
    using Condition = Model::PluralFormCondition;

    /// What a comparison compares, for a number.
    using Term = boost::function<std::int64_t(std::int64_t)>;

    /// @throws std::logic_error for a value that is no operator.
    static void MakeComparison(Condition& result, const Term& term, CompareOperator op,
                               std::uint32_t constant);

    /// Holds when one of the conditions does; tried from the left until then. The cost of building
    /// and copying it does not grow with every condition joined so far, so a long chain stays cheap.
    static void MakeOr(Condition& result, const Condition& first,
                       const std::vector<Condition>& rest);

    /// Holds when all conditions do; tried from the left until one does not.
    static void MakeAnd(Condition& result, const Condition& first,
                        const std::vector<Condition>& rest);

    /// The remainder. The divisor must not be zero.
    static void MakeModulo(Term& result, std::uint32_t divisor);

    /// The number itself.
    static void MakeParameter(Term& result);
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
