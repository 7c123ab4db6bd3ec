// Gives the engine the texts of external parameters.
#pragma once

#include "qor/basic_string_t.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class IParamResolver {
public:
    /// @param name  the parameter's name, letter case kept.
    /// @throws a standard exception when the parameter cannot be resolved.
    virtual qor::string16_t Resolve(const qor::string16_t& name) = 0;

    virtual ~IParamResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
