// Answers requests for keys.
#pragma once

#include <string_view>

#include "IResolveListener.h"
#include "ResolvedText.h"

namespace LocalizationManager::StringLocalizing::Resolving {

/// Immutable once built; may be asked from several threads. Keys do not depend on letter case.
class IStringProvider {
public:
    /// Makes the final text of a key.
    /// @param listener  may be null.
    /// @param output    empty when called. It may show a text that the provider keeps, so it is kept no
    ///                  longer than the provider.
    /// @throws KeyNotFoundException; what resolving throws.
    virtual void GetString(std::u16string_view key, IResolveListener* listener,
                           ResolvedText& output) = 0;

    virtual bool HasString(std::u16string_view key) = 0;

    virtual ~IStringProvider() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
