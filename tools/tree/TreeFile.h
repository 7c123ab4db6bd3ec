// A file of a localisation tree, or of the alternative one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lm_tree {

enum class Side : std::uint8_t { Root, Alternative };

/// Its number in `Tree::Files`.
using FileId = std::size_t;

enum class FileKind : std::uint8_t { Texts, Rule };

/// All texts are UTF-8.
struct TreeFile {
    Side side = Side::Root;
    FileKind kind = FileKind::Texts;
    std::string path;       // below its tree, with "/"
    std::string directory;  // that stands in the tree: of a culture, or "neutral", or any other
    std::string scope;      // of texts
    std::uintmax_t size = 0;
};

}  // namespace lm_tree
