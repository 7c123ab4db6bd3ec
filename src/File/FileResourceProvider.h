// Finds localisation sources, plural rules and resource files in directory trees.
#pragma once

#include <string>
#include <string_view>

#include "IResourceProvider.h"
#include "qor/basic_string_t.h"

namespace LocalizationManager::File {

using StringLocalizing::Model::PluralFormRuleId;
using StringLocalizing::Pipeline::ResourceContent;

/// Below a tree's base directory, the directories of a culture are tried from the most specific one
/// down to "neutral"; the whole alternative tree comes before the root tree. Nothing is cached:
/// files that change are seen by the next call.
class FileResourceProvider : public StringLocalizing::Pipeline::IResourceProvider {
public:
    /// @param alternativeLocalizationUri  may be empty.
    /// @throws QorCallFailedException when a directory does not exist or cannot be asked.
    FileResourceProvider(const std::u16string& rootLocalizationUri,
                         const std::u16string& alternativeLocalizationUri);
    FileResourceProvider(const FileResourceProvider&) = delete;
    FileResourceProvider& operator=(const FileResourceProvider&) = delete;

    ResourceContent GetResource(const std::u16string& name,
                                const localization_manager::Culture& culture) const override;
    bool HasPluralFormRules(const PluralFormRuleId& id) const override;
    ResourceContent GetPluralFormRules(const PluralFormRuleId& id) const override;
    std::u16string GetResourcePath(const std::u16string& scope,
                                   const localization_manager::Culture& culture,
                                   const std::u16string& fileName) const override;

protected:
    /// The plural rules of the region, or else of the language, in the root tree; empty when there
    /// are none.
    virtual qor::string16_t FindPluralFormRulesPath(const PluralFormRuleId& id) const;

private:
    std::u16string Find(const localization_manager::Culture& culture,
                        const std::u16string& relativePath) const;

    std::u16string rootLocalizationUri_;
    std::u16string alternativeLocalizationUri_;
};

}  // namespace LocalizationManager::File
