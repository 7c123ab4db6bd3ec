// A plural form invocation: one of several values, chosen by a number.
#pragma once

#include <boost/ptr_container/ptr_vector.hpp>
#include <string>

namespace LocalizationManager::StringLocalizing::Model {

struct Value;

/// Owns its forms one by one, because they are values and may hold plural forms themselves. Copying
/// clones every form.
struct PluralForm {
    PluralForm();
    PluralForm(const PluralForm& other);
    PluralForm(PluralForm&& other) noexcept;
    PluralForm& operator=(const PluralForm& other);
    PluralForm& operator=(PluralForm&& other) noexcept;
    ~PluralForm();

    std::u16string paramName;        // the parameter that holds the number; without the "$"
    boost::ptr_vector<Value> forms;  // form i is the text when entry i of the plural rule holds
};

}  // namespace LocalizationManager::StringLocalizing::Model
