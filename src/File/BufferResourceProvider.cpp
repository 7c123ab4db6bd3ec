#include "BufferResourceProvider.h"

#include <boost/current_function.hpp>
#include <utility>

#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::File {

using localization_manager::Culture;

BufferResourceProvider::BufferResourceProvider(
    boost::shared_ptr<StringLocalizing::Pipeline::IResourceProvider> resourceProvider,
    const std::u16string& scopeName, const std::u16string& buffer,
    const std::u16string& commonBuffer)
    : resourceProvider_(std::move(resourceProvider)),
      scopeName_(scopeName),
      buffer_(buffer),
      commonBuffer_(commonBuffer) {
    // The place that messages print.
    constexpr const char* kSource = "src\\File/buffer_resource_provider";
    constexpr std::int32_t kLine = 25;
    code_contracts::CheckNotNull(resourceProvider_,
                                 {"resourceProvider_", BOOST_CURRENT_FUNCTION, kSource, kLine});
}

BufferResourceProvider::ResourceContent BufferResourceProvider::GetResource(
    const std::u16string& name, const Culture& culture) const {
    if (name == StringLocalizing::Pipeline::kCommonResourceName && !commonBuffer_.empty()) {
        return {commonBuffer_, name};
    }
    if (name != scopeName_) {
        return resourceProvider_->GetResource(name, culture);
    }
    return {buffer_, scopeName_};
}

bool BufferResourceProvider::HasPluralFormRules(const PluralFormRuleId& id) const {
    return resourceProvider_->HasPluralFormRules(id);
}

BufferResourceProvider::ResourceContent BufferResourceProvider::GetPluralFormRules(
    const PluralFormRuleId& id) const {
    return resourceProvider_->GetPluralFormRules(id);
}

std::u16string BufferResourceProvider::GetResourcePath(const std::u16string& scope,
                                                       const Culture& culture,
                                                       const std::u16string& fileName) const {
    return resourceProvider_->GetResourcePath(scope, culture, fileName);
}

}  // namespace LocalizationManager::File
