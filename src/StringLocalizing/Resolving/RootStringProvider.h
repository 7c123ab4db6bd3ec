// The end of a chain of string providers: what it does not have is not found.
#pragma once

#include "StringProviderBase.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class RootStringProvider : public StringProviderBase {
public:
    using StringProviderBase::StringProviderBase;

protected:
    void GetFallbackString(std::u16string_view key, IResolveListener* listener,
                           ResolvedText& output) override;
    bool HasFallbackString(std::u16string_view key) override;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
