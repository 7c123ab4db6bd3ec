#include "plural/Condition.h"

#include <algorithm>

namespace lm_plural {

namespace {

using LocalizationManager::StringLocalizing::Parsing::CompareOperator;

bool Compare(CompareOperator op, std::uint64_t value, std::uint64_t constant) {
    switch (op) {
        case CompareOperator::Equal:
            return value == constant;
        case CompareOperator::NotEqual:
            return value != constant;
        case CompareOperator::Less:
            return value < constant;
        case CompareOperator::LessOrEqual:
            return value <= constant;
        case CompareOperator::Greater:
            return value > constant;
        case CompareOperator::GreaterOrEqual:
            return value >= constant;
    }
    return false;
}

}  // namespace

bool Condition::HoldsFor(std::uint64_t number) const {
    const auto holds = [number](const Condition& part) { return part.HoldsFor(number); };
    switch (kind) {
        case Kind::Comparison:
            return Compare(op, divisor == 0 ? number : number % divisor, constant);
        case Kind::All:
            return std::all_of(parts.begin(), parts.end(), holds);
        case Kind::Any:
            return std::any_of(parts.begin(), parts.end(), holds);
    }
    return false;
}

}  // namespace lm_plural
