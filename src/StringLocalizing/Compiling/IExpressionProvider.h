// Where the compiler finds the values that keys stand for.
#pragma once

#include <string_view>

#include "Value.h"

namespace LocalizationManager::StringLocalizing::Compiling {

class IExpressionProvider {
public:
    /// @param operands  receives the compiled operands of the key, in place of what it held.
    /// @throws KeyNotFoundException for a key that is unknown.
    virtual void GetExpression(std::u16string_view key, Model::Value& operands) = 0;

    virtual ~IExpressionProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
