// Keys of texts for one of several cases that are no numbers, such as a person's gender.
#pragma once

#include <string_view>

namespace lm_source {

/// The key that a variant belongs to by its name: "Invited" of "Invited._female".
/// @return empty for a key that is no variant, whatever other keys there are.
inline std::string_view BaseOfVariant(std::string_view key) {
    const std::size_t dot = key.rfind('.');
    const bool isVariant =
        dot != std::string_view::npos && dot + 1 < key.size() && key[dot + 1] == '_';
    return isVariant ? key.substr(0, dot) : std::string_view();
}

}  // namespace lm_source
