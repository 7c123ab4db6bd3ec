// Texts that grow out of bounds when their references are replaced.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Compiling {

class ExpansionLimitException : public std::runtime_error {
public:
    /// @param key    whose value goes beyond the limit.
    /// @param limit  one of the two of `expansion_limits.h`.
    ExpansionLimitException(std::u16string_view key, std::size_t limit);
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
