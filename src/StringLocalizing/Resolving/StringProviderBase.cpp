#include "StringProviderBase.h"

#include <boost/current_function.hpp>
#include <utility>

#include "LowerCase.h"
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

std::u16string StringProviderBase::GetString(const std::u16string& key,
                                             localization_manager::IResolveListener* listener) {
    const std::u16string lowerKey = Text::LowerCase(key);
    const auto found = resourceDictionary_->find(lowerKey);
    if (found == resourceDictionary_->end()) {
        return GetFallbackString(lowerKey, listener);
    }
    std::u16string text = keyResolver_->Resolve(found->second, listener);
    Notify(listener, localization_manager::ResolveKind::Key, name_, key, text);
    return text;
}

bool StringProviderBase::HasString(const std::u16string& key) {
    return resourceDictionary_->count(Text::LowerCase(key)) != 0 || HasFallbackString(key);
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
