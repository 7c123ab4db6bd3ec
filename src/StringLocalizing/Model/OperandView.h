// An operand as it stands in a value.
#pragma once

#include <string_view>

#include "OperandKind.h"

namespace LocalizationManager::StringLocalizing::Model {

struct OperandView {
    OperandKind kind;
    std::u16string_view text;   // of a text; else the key, or the parameter's name
    std::u16string_view forms;  // of a plural form: the code of its values, each as a text
    std::u16string_view code;   // of the whole operand
};

}  // namespace LocalizationManager::StringLocalizing::Model
