// What translators get of a text, and what becomes of what they give back.
#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Message.h"

namespace lm_exchange {

/// One text to translate, or the forms of one.
struct Unit {
    std::string number;  // of the plural form that it is; empty for the text itself
    bool isPlural = false;

    /// Of the reference: the text, or the form for 1 and the last one, which may be the same.
    std::vector<std::string> reference;

    /// Of the translation: the text, or as many forms as the culture's rule has. Empty where there
    /// is none.
    std::vector<std::string> own;
};

/// What the two cultures' rules say of forms.
struct FormCounts {
    std::size_t referenceOne = 0;        // the reference's form for 1
    std::size_t own = 1;                 // at least one
    std::bitset<8> severalNumbers = {};  // which of the own forms serve several
};

/// A text with one plural form where reference or translation has it is one unit, with the text
/// around the form in each of its forms. One with several is a unit with "{1}", "{2}" in it, and a
/// unit for each.
class Exchange {
public:
    Exchange(Message reference, std::optional<Message> own, FormCounts counts);

    const std::vector<Unit>& Units() const noexcept { return units_; }

    bool HasOwn() const noexcept { return own_.has_value(); }

    /// Whether the translation has another number of forms than the rule.
    bool HasOtherFormCount() const noexcept { return hasOtherFormCount_; }

    /// The value that says what translations say.
    /// @param translations  of each unit; what it is now where it did not change.
    /// @throws Inexpressible also for names that the unit does not have, or that got lost.
    std::string ValueWith(const std::vector<std::vector<std::string>>& translations) const;

private:
    void AddWhole();
    void AddParts();
    std::vector<std::string> Filled(std::vector<std::string> forms);
    void RequireNames(const Unit& unit, const std::vector<std::string>& translation) const;
    void RequireNamesInForms(const Unit& unit, const std::vector<std::string>& forms) const;
    const std::string& ParameterOf(const Unit& unit) const;
    Message WithForms(const std::vector<std::string>& forms, const Names& names) const;
    Names NamesOf() const;
    const Plural& PluralOf(const std::string& number) const;

    Message reference_;
    std::optional<Message> own_;
    FormCounts counts_;
    bool hasOtherFormCount_ = false;
    std::vector<Unit> units_;
};

}  // namespace lm_exchange
