#include "RootStringProvider.h"

#include "KeyNotFoundException.h"

namespace LocalizationManager::StringLocalizing::Resolving {

void RootStringProvider::GetFallbackString(std::u16string_view key, IResolveListener* /*listener*/,
                                           ResolvedText& /*output*/) {
    throw Model::KeyNotFoundException(key);
}

bool RootStringProvider::HasFallbackString(std::u16string_view /*key*/) {
    return false;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
