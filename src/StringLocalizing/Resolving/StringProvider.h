// A string provider that asks its parent for what it does not have.
#pragma once

#include "StringProviderBase.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class StringProvider : public StringProviderBase {
public:
    StringProvider(boost::shared_ptr<IKeyResolver> keyResolver,
                   boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary,
                   boost::shared_ptr<IStringProvider> parentStringProvider,
                   const std::u16string& name);

protected:
    void GetFallbackString(std::u16string_view key, IResolveListener* listener,
                           ResolvedText& output) override;
    bool HasFallbackString(std::u16string_view key) override;

private:
    boost::shared_ptr<IStringProvider> parentStringProvider_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
