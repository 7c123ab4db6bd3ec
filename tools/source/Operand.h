// One part of a value, as it stands in a file.
#pragma once

#include <cstdint>

#include "OperandKind.h"
#include "source/Range.h"

namespace lm_source {

using LocalizationManager::StringLocalizing::Model::OperandKind;

/// What a plural form holds follows it at once, form after form, so that the operands of a file are
/// one list. `Value` and `FormsOf` walk it.
struct Operand {
    Range range;  // a string with its quotes, a parameter with its "$", the whole "{...}"
    std::uint32_t extent = 1;  // how many operands it is, itself and those in its forms
    OperandKind kind{};
    bool beginsForm = false;
};

}  // namespace lm_source
