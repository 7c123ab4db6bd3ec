#include "RootExpressionProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Compiling {

void RootExpressionProvider::GetExpression(std::u16string_view key, Model::Value& /*operands*/) {
    throw Model::KeyNotFoundException(key);
}

}  // namespace LocalizationManager::StringLocalizing::Compiling
