// Telling a resolve listener.
#pragma once

#include <string_view>

#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

void Notify(localization_manager::IResolveListener& listener,
            localization_manager::ResolveKind kind, std::u16string_view source,
            std::u16string_view name, std::u16string_view value);

/// Does nothing without a listener, not even converting the texts.
inline void Notify(localization_manager::IResolveListener* listener,
                   localization_manager::ResolveKind kind, std::u16string_view source,
                   std::u16string_view name, std::u16string_view value) {
    if (listener != nullptr) {
        Notify(*listener, kind, source, name, value);
    }
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
