// A plural form invocation: one of several values, chosen by a number.
#pragma once

#include <string>
#include <vector>

#include "Value.h"

namespace LocalizationManager::StringLocalizing::Model {

struct PluralForm {
    std::u16string paramName;  // the parameter that holds the number; without the "$"
    std::vector<Value> forms;  // form i is the text when entry i of the plural rule holds
};

}  // namespace LocalizationManager::StringLocalizing::Model
