// A condition of a plural rule file, as it was written.
#pragma once

#include <cstdint>
#include <vector>

#include "CompareOperator.h"

namespace lm_plural {

/// A comparison, or what joins several conditions.
struct Condition {
    enum class Kind : std::uint8_t { Comparison, All, Any };

    Kind kind = Kind::Comparison;

    // Of a comparison: the number, or its remainder, is compared with the constant.
    LocalizationManager::StringLocalizing::Parsing::CompareOperator op{};
    std::uint32_t divisor = 0;  // zero for the number itself
    std::uint32_t constant = 0;

    std::vector<Condition> parts;  // of a join

    /// @param number  0 or more.
    bool HoldsFor(std::uint64_t number) const;
};

}  // namespace lm_plural
