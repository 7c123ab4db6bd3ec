// Plural rules as the headers of PO files have them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plural/PluralExpression.h"
#include "plural/PluralRule.h"

namespace lm_plural {

/// The field "Plural-Forms", read.
struct PluralForms {
    std::size_t count = 0;
    PluralExpression expression;

    /// @throws std::invalid_argument when the field says something else.
    explicit PluralForms(std::string_view field);

private:
    explicit PluralForms(std::pair<std::size_t, std::string_view> parts);
};

/// The field for a rule. Numbers that the rule leaves out get its last form.
std::string PluralFormsOf(const PluralRule& rule);

/// Whether a field chooses the forms that a rule chooses, for every number that is tried.
bool Agree(const PluralForms& forms, const PluralRule& rule);

/// Numbers that tell rules apart: small ones, some around each power of ten, and a rule's own constants.
std::vector<std::uint64_t> NumbersToTry(const PluralRule& rule);

}  // namespace lm_plural
