// Hears how a text comes about.
#pragma once

#include <string_view>

#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IResolveListener {
public:
    /// @param kind    says what the texts are.
    /// @param source  empty but for keys.
    /// @throws what makes the request fail.
    virtual void OnResolved(localization_manager::ResolveKind kind, std::u16string_view source,
                            std::u16string_view name, std::u16string_view value) = 0;

    virtual ~IResolveListener() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
