// Gives the engine the texts of external parameters.
#pragma once

#include <string_view>

#include "ResolvedText.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IParamResolver {
public:
    /// Appends the text of a parameter.
    /// @param name  the parameter's name, letter case kept.
    /// @throws a standard exception when the parameter cannot be resolved.
    virtual void Resolve(std::u16string_view name, ResolvedText& output) = 0;

    virtual ~IParamResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
