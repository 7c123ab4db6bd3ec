#include "RootStringProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Resolving {

ResolvedText RootStringProvider::GetFallbackString(
    std::u16string_view key, localization_manager::IResolveListener* /*listener*/) {
    throw Model::KeyNotFoundException(key);
}

bool RootStringProvider::HasFallbackString(std::u16string_view /*key*/) {
    return false;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
