// Plural rules beside those of CLDR.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plural/PluralRule.h"

namespace lm_plural {

/// Numbers that one form serves, and for which CLDR has another one.
struct CldrDifference {
    std::string category;                // CLDR's
    std::optional<std::size_t> form;     // the rule's; empty when no condition accepts the numbers
    std::vector<std::uint64_t> numbers;  // ordered, from the range that was looked at
};

/// Compares for whole numbers. CLDR's categories and the forms belong together in the way in which
/// most numbers agree, small ones above all.
/// @param culture  by its name; a region without a row of its own has the language's.
/// @param numbers  to compare for, ordered.
/// @return empty when CLDR does not know the culture.
std::optional<std::vector<CldrDifference>> CompareWithCldr(
    const PluralRule& rule, std::string_view culture, const std::vector<std::uint64_t>& numbers);

/// What translators' tools call the forms: CLDR's categories where they belong together, else "form1",
/// "form2". No two are the same.
std::vector<std::string> CategoryNames(const PluralRule& rule, std::string_view culture);

}  // namespace lm_plural
