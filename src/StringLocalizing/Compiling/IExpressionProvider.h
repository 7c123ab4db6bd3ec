// Where the compiler finds the values that keys stand for.
#pragma once

#include <string_view>

#include "ValueView.h"

namespace LocalizationManager::StringLocalizing::Compiling {

class IExpressionProvider {
public:
    /// The compiled value of a key; holds until its dictionary is written to.
    /// @throws KeyNotFoundException for a key that is unknown.
    virtual Model::ValueView GetExpression(std::u16string_view key) = 0;

    virtual ~IExpressionProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
