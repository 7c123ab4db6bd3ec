// Answers requests for keys.
#pragma once

#include <string>

#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

/// Immutable once built; may be asked from several threads. Keys do not depend on letter case.
class IStringProvider {
public:
    /// The final text of a key.
    /// @param listener  may be null.
    /// @throws KeyNotFoundException; what resolving throws.
    virtual std::u16string GetString(const std::u16string& key,
                                     localization_manager::IResolveListener* listener) = 0;

    virtual bool HasString(const std::u16string& key) = 0;

    virtual ~IStringProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
