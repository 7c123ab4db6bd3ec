#include "RootExpressionProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Compiling {

Model::ValueView RootExpressionProvider::GetExpression(std::u16string_view key) {
    throw Model::KeyNotFoundException(key);
}

}  // namespace LocalizationManager::StringLocalizing::Compiling
