// Where localisation sources come from.
#pragma once

#include <string>

#include "PluralFormRuleId.h"
#include "ResourceContent.h"
#include "localization_manager/Culture.h"
#include "localization_manager/tree_layout.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

/// The source of the texts that all scopes share.
inline constexpr const char16_t* kCommonResourceName =
    localization_manager::tree_layout::kCommonScope;

/// Implementations are immutable and may be asked from several threads.
class IResourceProvider {
public:
    /// @param name  of a scope, or "common".
    /// @throws std::runtime_error when the culture has no such source, or it cannot be read.
    virtual ResourceContent GetResource(const std::u16string& name,
                                        const localization_manager::Culture& culture) const = 0;

    virtual bool HasPluralFormRules(const Model::PluralFormRuleId& id) const = 0;

    /// @throws std::runtime_error when `HasPluralFormRules` is false, or the text cannot be read.
    virtual ResourceContent GetPluralFormRules(const Model::PluralFormRuleId& id) const = 0;

    /// The full path of a resource file of a scope; empty when there is none.
    virtual std::u16string GetResourcePath(const std::u16string& scope,
                                           const localization_manager::Culture& culture,
                                           const std::u16string& fileName) const = 0;

    virtual ~IResourceProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Pipeline
