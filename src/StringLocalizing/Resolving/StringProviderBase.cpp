#include "StringProviderBase.h"

#include <boost/current_function.hpp>
#include <utility>

#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

StringProviderBase::StringProviderBase(
    boost::shared_ptr<IKeyResolver> keyResolver,
    boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary,
    const std::u16string& name)
    : keyResolver_(std::move(keyResolver)),
      resourceDictionary_(std::move(resourceDictionary)),
      name_(name) {
    code_contracts::RequireNotNull(keyResolver_,
                                   {"keyResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    code_contracts::RequireNotNull(
        resourceDictionary_, {"resourceDictionary", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
}

void StringProviderBase::GetString(std::u16string_view key, IResolveListener* listener,
                                   ResolvedText& output) {
    if (const auto value = FindAtOnce(key)) {
        Resolve(*value, key, listener, output);
    } else {
        GetByLowerCase(key, listener, output);
    }
}

void StringProviderBase::GetByLowerCase(std::u16string_view key, IResolveListener* listener,
                                        ResolvedText& output) {
    const LowerKey buffer = ToLowerCase(key);
    const std::u16string_view lowerKey(buffer.data(), buffer.size());
    if (const auto found = resourceDictionary_->Find(lowerKey)) {
        Resolve(resourceDictionary_->At(*found).value, key, listener, output);
    } else {
        GetFallbackString(lowerKey, listener, output);
    }
}

std::optional<Model::ValueView> StringProviderBase::FindAtOnce(std::u16string_view key) const {
    return lowerCase_.MapsAsciiAsUsual() ? resourceDictionary_->FindInAnyCase(key) : std::nullopt;
}

void StringProviderBase::Resolve(Model::ValueView value, std::u16string_view key,
                                 IResolveListener* listener, ResolvedText& output) const {
    keyResolver_->Resolve(value, listener, output);
    if (listener != nullptr) {
        listener->OnResolved(localization_manager::ResolveKind::Key, name_, key, output.view());
    }
}

bool StringProviderBase::HasString(std::u16string_view key) {
    if (FindAtOnce(key)) {
        return true;
    }
    const LowerKey buffer = ToLowerCase(key);
    return resourceDictionary_->Find({buffer.data(), buffer.size()}) || HasFallbackString(key);
}

StringProviderBase::LowerKey StringProviderBase::ToLowerCase(std::u16string_view key) const {
    LowerKey lower(key.size(), boost::container::default_init);
    lowerCase_.Map(key, lower.data());
    return lower;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
