// How the grammar of plural rule files builds its conditions. They hold no reference to the text.
#pragma once

#include <boost/function.hpp>
#include <cstdint>
#include <vector>

#include "CompareOperator.h"
#include "PluralFormRule.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// What a comparison compares, for a number.
using NumberExpression = boost::function<std::int64_t(std::int64_t)>;

/// @throws std::logic_error for a value that is no operator.
void MakeComparison(Model::PluralFormCondition& result, const NumberExpression& term,
                    CompareOperator op, std::uint32_t constant);

/// Holds when one of the conditions does; tried from the left until then. The cost of building and
/// copying it does not grow with every condition joined so far, so a long chain stays cheap.
void MakeOr(Model::PluralFormCondition& result, const Model::PluralFormCondition& first,
            const std::vector<Model::PluralFormCondition>& rest);

/// Holds when all conditions do; tried from the left until one does not.
void MakeAnd(Model::PluralFormCondition& result, const Model::PluralFormCondition& first,
             const std::vector<Model::PluralFormCondition>& rest);

/// The remainder, which is negative for a negative number. The divisor must not be zero.
void MakeModulo(NumberExpression& result, std::uint32_t divisor);

/// The number itself.
void MakeParameter(NumberExpression& result);

}  // namespace LocalizationManager::StringLocalizing::Parsing
