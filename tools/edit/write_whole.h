// Writing files so that nobody ever sees half of one.
#pragma once

#include <filesystem>
#include <string_view>

namespace lm_edit {

/// Writes a file beside the old one and puts it in its place; owner and mode are kept. A link is
/// followed.
/// @throws std::runtime_error with the reason; the old file is then as it was.
void WriteWhole(const std::filesystem::path& path, std::string_view bytes);

/// The same for a file of a tree, whose directories are made where they are missing.
/// @throws std::runtime_error also when the file or a directory above it is a link that leads out
///         of the tree.
void WriteInTree(const std::filesystem::path& tree, const std::filesystem::path& path,
                 std::string_view bytes);

}  // namespace lm_edit
