// Serves the texts of one compiled dictionary; the derived class says what happens on a miss.
#pragma once

#include <boost/container/small_vector.hpp>
#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>

#include "IKeyResolver.h"
#include "IStringProvider.h"
#include "LowerCaseMapping.h"
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

    void GetString(std::u16string_view key, IResolveListener* listener,
                   ResolvedText& output) override;
    bool HasString(std::u16string_view key) override;

protected:
    /// @param key  lower-cased.
    virtual void GetFallbackString(std::u16string_view key, IResolveListener* listener,
                                   ResolvedText& output) = 0;

    /// @param key  as the caller passed it.
    virtual bool HasFallbackString(std::u16string_view key) = 0;

private:
    using LowerKey = boost::container::small_vector<char16_t, 64>;

    /// Finds most keys that are there, before they are lower-cased.
    std::optional<Model::ValueView> FindAtOnce(std::u16string_view key) const;

    void GetByLowerCase(std::u16string_view key, IResolveListener* listener, ResolvedText& output);

    /// @param key  as the caller passed it.
    void Resolve(Model::ValueView value, std::u16string_view key, IResolveListener* listener,
                 ResolvedText& output) const;

    /// The lower-cased key.
    LowerKey ToLowerCase(std::u16string_view key) const;

    boost::shared_ptr<IKeyResolver> keyResolver_;
    boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary_;
    std::u16string name_;
    // Fetching it at each request would cost more than the lookup.
    Text::LowerCaseMapping lowerCase_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
