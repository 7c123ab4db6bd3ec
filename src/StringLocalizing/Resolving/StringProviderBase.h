// Serves the texts of one compiled dictionary; the derived class says what happens on a miss.
#pragma once

#include <boost/shared_ptr.hpp>

#include "IKeyResolver.h"
#include "IStringProvider.h"
#include "ResourceDictionary.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class StringProviderBase : public IStringProvider {
public:
    /// @param resourceDictionary  compiled before the first request.
    /// @param name                name of the dictionary's source, for the listener.
    StringProviderBase(boost::shared_ptr<IKeyResolver> keyResolver,
                       boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary,
                       const std::u16string& name);
    StringProviderBase(const StringProviderBase&) = delete;
    StringProviderBase& operator=(const StringProviderBase&) = delete;

    std::u16string GetString(const std::u16string& key,
                             localization_manager::IResolveListener* listener) override;
    bool HasString(const std::u16string& key) override;

protected:
    /// @param key  lower-cased.
    virtual std::u16string GetFallbackString(const std::u16string& key,
                                             localization_manager::IResolveListener* listener) = 0;

    /// @param key  as the caller passed it.
    virtual bool HasFallbackString(const std::u16string& key) = 0;

private:
    boost::shared_ptr<IKeyResolver> keyResolver_;
    boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary_;
    std::u16string name_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
