// Files as editors name them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lm_lsp {

/// The absolute, normal path of a `file:` URI; empty for any other, and for what is none.
std::optional<std::filesystem::path> PathOfUri(std::string_view uri);

std::string UriOf(const std::filesystem::path& path);

}  // namespace lm_lsp
