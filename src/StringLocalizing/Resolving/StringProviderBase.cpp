#include "StringProviderBase.h"

#include <boost/current_function.hpp>
#include <utility>

#include "Notify.h"
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

ResolvedText StringProviderBase::GetString(std::u16string_view key,
                                           localization_manager::IResolveListener* listener) {
    const LowerKey buffer = ToLowerCase(key);
    const std::u16string_view lowerKey(buffer.data(), buffer.size());
    const auto found = resourceDictionary_->Find(lowerKey);
    return found ? Resolve(resourceDictionary_->At(*found).value, key, listener)
                 : GetFallbackString(lowerKey, listener);
}

ResolvedText StringProviderBase::Resolve(Model::ValueView value, std::u16string_view key,
                                         localization_manager::IResolveListener* listener) const {
    ResolvedText text = keyResolver_->Resolve(value, listener);
    Notify(listener, localization_manager::ResolveKind::Key, name_, key, text.view());
    return text;
}

bool StringProviderBase::HasString(std::u16string_view key) {
    const LowerKey buffer = ToLowerCase(key);
    return resourceDictionary_->Find({buffer.data(), buffer.size()}) || HasFallbackString(key);
}

StringProviderBase::LowerKey StringProviderBase::ToLowerCase(std::u16string_view key) const {
    LowerKey lower(key.size(), boost::container::default_init);
    lowerCase_.Map(key, lower.data());
    return lower;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
