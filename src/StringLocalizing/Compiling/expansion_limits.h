// How far references may make texts grow.
#pragma once

#include <cstddef>

namespace LocalizationManager::StringLocalizing::Compiling {

/// A few keys that refer to the next one several times each can ask for any amount of memory, and for
/// time at every request, since a build that fails is tried again. No real text comes near these
/// sizes of the values that refer to others, in units as they are kept.
inline constexpr std::size_t kMaxExpandedValue = std::size_t{1} << 20U;
inline constexpr std::size_t kMaxExpandedDictionary = std::size_t{1} << 22U;

}  // namespace LocalizationManager::StringLocalizing::Compiling
