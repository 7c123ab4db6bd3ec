// Paths as texts, and back.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lm_tree {

/// UTF-8, with "/" between the parts on every system.
inline std::string Utf8Of(const std::filesystem::path& path) {
    return path.generic_u8string();
}

inline std::filesystem::path PathOf(std::string_view utf8) {
    return std::filesystem::u8path(utf8.begin(), utf8.end());
}

}  // namespace lm_tree
