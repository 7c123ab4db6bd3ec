// Turns a compiled value into its final text.
#pragma once

#include <string>

#include "Value.h"
#include "localization_manager/IResolveListener.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IKeyResolver {
public:
    /// @param listener  hears of every parameter and plural form; may be null.
    virtual std::u16string Resolve(const Model::Value& value,
                                   localization_manager::IResolveListener* listener) = 0;

    virtual ~IKeyResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
