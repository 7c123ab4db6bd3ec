// The right-hand side of a key, or one form of a plural form invocation.
#pragma once

#include <vector>

#include "Operand.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Its final text is the concatenation of its resolved operands.
struct Value {
    std::vector<Operand> operands;
};

}  // namespace LocalizationManager::StringLocalizing::Model
