#include "RootStringProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Resolving {

std::u16string RootStringProvider::GetFallbackString(
    const std::u16string& key, localization_manager::IResolveListener* /*listener*/) {
    throw Model::KeyNotFoundException(key);
}

bool RootStringProvider::HasFallbackString(const std::u16string& /*key*/) {
    return false;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
