// Numbers, as people are told which of them choose a form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "plural/PluralRule.h"

namespace lm_plural {

/// Numbers that tell rules apart: all small ones, and some that only a rule for exact millions needs.
const std::vector<std::uint64_t>& TellingNumbers();

/// The ones of these that choose a form.
std::vector<std::uint64_t> NumbersOf(const PluralRule& rule, std::size_t form);

/// "2 to 20, 22 to 30 and on"
/// @param numbers  some of `TellingNumbers`, in their order.
std::string RangesText(const std::vector<std::uint64_t>& numbers);

}  // namespace lm_plural
