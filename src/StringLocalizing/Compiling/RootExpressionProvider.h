// The end of a chain of expression providers: knows no key.
#pragma once

#include "IExpressionProvider.h"

namespace LocalizationManager::StringLocalizing::Compiling {

class RootExpressionProvider : public IExpressionProvider {
public:
    void GetExpression(const std::u16string& key, std::vector<Model::Operand>& operands) override;
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
