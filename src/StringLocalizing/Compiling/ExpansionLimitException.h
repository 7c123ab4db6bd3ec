// Texts that grow out of bounds when their references are replaced.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Compiling {

/// A few keys that refer to the next one several times each can ask for any amount of memory. No real
/// text comes near these sizes, counted in UTF-16 units, with one more for each operand.
inline constexpr std::size_t kMaxExpandedValue = std::size_t{1} << 20U;
inline constexpr std::size_t kMaxExpandedDictionary = std::size_t{1} << 26U;

class ExpansionLimitException : public std::runtime_error {
public:
    /// @param key    whose value goes beyond the limit.
    /// @param limit  one of the two.
    ExpansionLimitException(std::u16string_view key, std::size_t limit);
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
