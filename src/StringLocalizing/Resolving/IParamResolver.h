// Gives the engine the texts of external parameters.
#pragma once

#include <string>

namespace LocalizationManager::StringLocalizing::Resolving {

class IParamResolver {
public:
    /// @param name  the parameter's name, letter case kept.
    /// @throws a standard exception when the parameter cannot be resolved.
    virtual std::u16string Resolve(const std::u16string& name) = 0;

    virtual ~IParamResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
