// The end of a chain of string providers: what it does not have is not found.
#pragma once

#include "StringProviderBase.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class RootStringProvider : public StringProviderBase {
public:
    using StringProviderBase::StringProviderBase;

protected:
    std::u16string GetFallbackString(const std::u16string& key,
                                     localization_manager::IResolveListener* listener) override;
    bool HasFallbackString(const std::u16string& key) override;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
