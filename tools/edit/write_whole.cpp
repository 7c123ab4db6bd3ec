#include "edit/write_whole.h"

#include <stdexcept>
#include <string>
#include <system_error>

#include "ResolveLinks.h"
#include "WriteFileWhole.h"
#include "tree/path_text.h"

namespace lm_edit {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void ThrowCannotWrite(const fs::path& path, const std::string& reason) {
    throw std::runtime_error("cannot write '" + lm_tree::Utf8Of(path) + "': " + reason);
}

/// The file itself, links followed.
fs::path Resolved(const fs::path& path) {
    std::error_code error;
    fs::path resolved = Platform::ResolveLinks(path, error);
    if (error) {
        ThrowCannotWrite(path, error.message());
    }
    return resolved;
}

void Write(const fs::path& path, const fs::path& resolved, std::string_view bytes) {
    if (const std::error_code error = Platform::WriteFileWhole(resolved, bytes)) {
        ThrowCannotWrite(path, error.message());
    }
}

}  // namespace

void WriteWhole(const fs::path& path, std::string_view bytes) {
    Write(path, Resolved(path), bytes);
}

void WriteInTree(const fs::path& tree, const fs::path& path, std::string_view bytes) {
    const fs::path resolved = Resolved(path);
    const fs::path below = resolved.lexically_relative(Resolved(tree / ""));
    if (below.empty() || *below.begin() == "..") {
        ThrowCannotWrite(path, "a link leads out of '" + lm_tree::Utf8Of(tree) + "'");
    }
    std::error_code error;
    fs::create_directories(resolved.parent_path(), error);
    if (error) {
        ThrowCannotWrite(path, error.message());
    }
    Write(path, resolved, bytes);
}

}  // namespace lm_edit
