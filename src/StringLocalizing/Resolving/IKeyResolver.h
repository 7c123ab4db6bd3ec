// Turns a compiled value into its final text.
#pragma once

#include "IResolveListener.h"
#include "ResolvedText.h"
#include "ValueView.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IKeyResolver {
public:
    /// Appends the final text of a value.
    /// @param listener  hears of every parameter and plural form; may be null.
    /// @param output    may show texts of the value, which lives longer.
    virtual void Resolve(Model::ValueView value, IResolveListener* listener,
                         ResolvedText& output) = 0;

    virtual ~IKeyResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
