// The end of a chain of expression providers: knows no key.
#pragma once

#include "IExpressionProvider.h"

namespace LocalizationManager::StringLocalizing::Compiling {

class RootExpressionProvider : public IExpressionProvider {
public:
    Model::ValueView GetExpression(std::u16string_view key) override;
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
