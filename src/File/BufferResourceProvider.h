// Serves texts of the host in place of files.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>

#include "IResourceProvider.h"

namespace LocalizationManager::File {

/// Answers for one scope, and for the common source if it has a text for that, whatever the
/// culture; everything else comes from the provider that it wraps. Names are compared unit by unit,
/// letter case included.
class BufferResourceProvider : public StringLocalizing::Pipeline::IResourceProvider {
public:
    using ResourceContent = StringLocalizing::Pipeline::ResourceContent;
    using PluralFormRuleId = StringLocalizing::Model::PluralFormRuleId;

    /// @param scopeName     name of the source that `buffer` is the text of.
    /// @param commonBuffer  text of the common source; empty for the one of the wrapped provider.
    /// @throws a contract exception for a null provider.
    BufferResourceProvider(
        boost::shared_ptr<StringLocalizing::Pipeline::IResourceProvider> resourceProvider,
        const std::u16string& scopeName, const std::u16string& buffer,
        const std::u16string& commonBuffer);
    BufferResourceProvider(const BufferResourceProvider&) = delete;
    BufferResourceProvider& operator=(const BufferResourceProvider&) = delete;

    ResourceContent GetResource(const std::u16string& name,
                                const localization_manager::Culture& culture) const override;
    bool HasPluralFormRules(const PluralFormRuleId& id) const override;
    ResourceContent GetPluralFormRules(const PluralFormRuleId& id) const override;
    std::u16string GetResourcePath(const std::u16string& scope,
                                   const localization_manager::Culture& culture,
                                   const std::u16string& fileName) const override;

private:
    boost::shared_ptr<StringLocalizing::Pipeline::IResourceProvider> resourceProvider_;
    std::u16string scopeName_;
    std::u16string buffer_;
    std::u16string commonBuffer_;
};

}  // namespace LocalizationManager::File
