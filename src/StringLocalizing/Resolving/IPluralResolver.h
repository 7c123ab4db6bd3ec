// Chooses the form of a plural form invocation.
#pragma once

#include <cstdint>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Resolving {

class IPluralResolver {
public:
    /// @param paramName  the parameter that holds the number.
    /// @return the index of the form to use.
    virtual std::uint16_t Resolve(std::u16string_view paramName) = 0;

    /// The number of forms that the culture's rule has.
    virtual std::uint16_t GetFormCount() = 0;

    virtual ~IPluralResolver() = default;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
