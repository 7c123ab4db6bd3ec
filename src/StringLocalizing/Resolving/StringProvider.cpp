#include "StringProvider.h"

#include <boost/current_function.hpp>
#include <utility>

#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

StringProvider::StringProvider(
    boost::shared_ptr<IKeyResolver> keyResolver,
    boost::shared_ptr<const Model::ResourceDictionary> resourceDictionary,
    boost::shared_ptr<IStringProvider> parentStringProvider, const std::u16string& name)
    : StringProviderBase(std::move(keyResolver), std::move(resourceDictionary), name),
      parentStringProvider_(std::move(parentStringProvider)) {
    code_contracts::RequireNotNull(
        parentStringProvider_,
        {"parentStringProvider", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
}

void StringProvider::GetFallbackString(std::u16string_view key, IResolveListener* listener,
                                       ResolvedText& output) {
    parentStringProvider_->GetString(key, listener, output);
}

bool StringProvider::HasFallbackString(std::u16string_view key) {
    return parentStringProvider_->HasString(key);
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
