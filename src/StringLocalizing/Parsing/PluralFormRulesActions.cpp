#include "PluralFormRulesActions.h"

#include <algorithm>
#include <boost/lambda/bind.hpp>
#include <boost/lambda/lambda.hpp>
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <stdexcept>

#include "Remainder.h"

namespace LocalizationManager::StringLocalizing::Parsing {

namespace {

using Model::PluralFormCondition;
using Conditions = std::vector<PluralFormCondition>;
using SharedConditions = boost::shared_ptr<const Conditions>;

struct AnyOf {
    SharedConditions conditions;

    bool operator()(std::int64_t number) const {
        return std::any_of(conditions->begin(), conditions->end(),
                           [number](const auto& condition) { return condition(number); });
    }
};

struct AllOf {
    SharedConditions conditions;

    bool operator()(std::int64_t number) const {
        return std::all_of(conditions->begin(), conditions->end(),
                           [number](const auto& condition) { return condition(number); });
    }
};

std::int64_t Identity(std::int64_t number) {
    return number;
}

template <typename Junction>
void Join(PluralFormCondition& result, const PluralFormCondition& first, const Conditions& rest) {
    if (rest.empty()) {
        result = first;
        return;
    }
    const auto conditions = boost::make_shared<Conditions>();
    conditions->reserve(1 + rest.size());
    conditions->push_back(first);
    conditions->insert(conditions->end(), rest.begin(), rest.end());
    result = Junction{conditions};
}

}  // namespace

void PluralFormRulesActions::MakeComparison(Condition& result, const Term& term, CompareOperator op,
                                            std::uint32_t constant) {
    const auto value = boost::lambda::bind(term, boost::lambda::_1);
    const auto number = static_cast<std::int64_t>(constant);
    switch (op) {
        case CompareOperator::Equal:
            result = value == number;
            return;
        case CompareOperator::NotEqual:
            result = value != number;
            return;
        case CompareOperator::Less:
            result = value < number;
            return;
        case CompareOperator::LessOrEqual:
            result = value <= number;
            return;
        case CompareOperator::Greater:
            result = value > number;
            return;
        case CompareOperator::GreaterOrEqual:
            result = value >= number;
            return;
    }
    throw std::logic_error("unexpected compare operator type");
}

void PluralFormRulesActions::MakeOr(Condition& result, const Condition& first,
                                    const std::vector<Condition>& rest) {
    Join<AnyOf>(result, first, rest);
}

void PluralFormRulesActions::MakeAnd(Condition& result, const Condition& first,
                                     const std::vector<Condition>& rest) {
    Join<AllOf>(result, first, rest);
}

void PluralFormRulesActions::MakeModulo(Term& result, std::uint32_t divisor) {
    result = Model::Remainder(divisor);
}

void PluralFormRulesActions::MakeParameter(Term& result) {
    result = &Identity;
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
