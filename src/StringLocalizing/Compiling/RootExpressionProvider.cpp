#include "RootExpressionProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Compiling {

void RootExpressionProvider::GetExpression(const std::u16string& key,
                                           std::vector<Model::Operand>& /*operands*/) {
    throw Model::KeyNotFoundException(key);
}

}  // namespace LocalizationManager::StringLocalizing::Compiling
