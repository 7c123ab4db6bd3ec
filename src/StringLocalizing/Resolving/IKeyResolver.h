// Turns a compiled value into its final text.
#pragma once

#include "ResolvedText.h"
#include "ValueView.h"
#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IKeyResolver {
public:
    /// @param value     lives longer than the result, which may show its texts.
    /// @param listener  hears of every parameter and plural form; may be null.
    virtual ResolvedText Resolve(Model::ValueView value,
                                 localization_manager::IResolveListener* listener) = 0;

    virtual ~IKeyResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
