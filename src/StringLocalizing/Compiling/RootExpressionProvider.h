// The end of a chain of expression providers: knows no key.
#pragma once

#include "IExpressionProvider.h"

namespace LocalizationManager::StringLocalizing::Compiling {

class RootExpressionProvider : public IExpressionProvider {
public:
    void GetExpression(std::u16string_view key, Model::Value& operands) override;
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
