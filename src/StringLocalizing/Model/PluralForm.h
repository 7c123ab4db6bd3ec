// A plural form invocation: one of several values, chosen by a number.
#pragma once

#include <string>
#include <vector>

namespace LocalizationManager::StringLocalizing::Model {

class Value;

/// Owns its forms, which are values and may hold plural forms themselves. Copying copies them all.
struct PluralForm {
    PluralForm();
    PluralForm(const PluralForm& other);
    PluralForm(PluralForm&& other) noexcept;
    PluralForm& operator=(const PluralForm& other);
    PluralForm& operator=(PluralForm&& other) noexcept;
    ~PluralForm();

    std::u16string paramName;  // the parameter that holds the number; without the "$"
    std::vector<Value> forms;  // form i is the text when entry i of the plural rule holds
};

}  // namespace LocalizationManager::StringLocalizing::Model
