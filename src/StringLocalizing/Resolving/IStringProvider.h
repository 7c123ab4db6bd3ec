// Answers requests for keys.
#pragma once

#include <string_view>

#include "ResolvedText.h"
#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

/// Immutable once built; may be asked from several threads. Keys do not depend on letter case.
class IStringProvider {
public:
    /// The final text of a key.
    /// @param listener  may be null.
    /// @throws KeyNotFoundException; what resolving throws.
    virtual ResolvedText GetString(std::u16string_view key,
                                   localization_manager::IResolveListener* listener) = 0;

    virtual bool HasString(std::u16string_view key) = 0;

    virtual ~IStringProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
