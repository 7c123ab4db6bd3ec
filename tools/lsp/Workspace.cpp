#include "lsp/Workspace.h"

#include <utility>

#include "localization_manager/tree_layout.h"
#include "lsp/uri.h"
#include "tree/CultureName.h"
#include "tree/path_text.h"

namespace lm_lsp {

namespace fs = std::filesystem;
namespace layout = localization_manager::tree_layout;

namespace {

bool IsBelow(const fs::path& directory, const fs::path& path) {
    const fs::path below = path.lexically_relative(directory);
    return !directory.empty() && !below.empty() && *below.begin() != fs::path("..") &&
           below != fs::path(".");
}

/// root/culture/Locs/scope.lt, root/language/Plural.rule or root/language/region/Plural.rule
fs::path RootAbove(const fs::path& path) {
    const fs::path directory = path.parent_path();
    if (path.extension() == fs::path(layout::kTextsExtension)) {
        return directory.filename() == fs::path(layout::kTextsDirectory)
                   ? directory.parent_path().parent_path()
                   : fs::path();
    }
    if (path.filename() != fs::path(layout::kPluralRuleFile)) {
        return {};
    }
    const fs::path above = directory.parent_path();
    // A region may be called like a language.
    return lm_tree::LanguageOfDirectory(lm_tree::Utf8Of(above.filename())) ? above.parent_path()
                                                                           : above;
}

}  // namespace

Workspace::Workspace(Settings settings, Checkpoint checkpoint)
    : settings_(std::move(settings)), checkpoint_(std::move(checkpoint)) {
    if (!settings_.root.empty()) {
        trees_.insert({settings_.root, settings_.alternative});
    }
}

void Workspace::Open(const std::string& uri, OpenText text) {
    texts_.insert_or_assign(uri, std::move(text));
    if (const auto path = PathOfUri(uri)) {
        if (auto tree = TreeOf(*path)) {
            trees_.insert(std::move(*tree));
        }
    }
}

void Workspace::Close(const std::string& uri) {
    texts_.erase(uri);
}

OpenText* Workspace::Find(const std::string& uri) {
    const auto found = texts_.find(uri);
    return found != texts_.end() ? &found->second : nullptr;
}

const OpenText* Workspace::Find(const std::string& uri) const {
    const auto found = texts_.find(uri);
    return found != texts_.end() ? &found->second : nullptr;
}

std::string Workspace::UriOf(const fs::path& path) const {
    std::string usual = lm_lsp::UriOf(path);
    if (texts_.count(usual) != 0) {
        return usual;
    }
    for (const auto& [uri, text] : texts_) {
        if (PathOfUri(uri) == path) {
            return uri;
        }
    }
    return usual;
}

std::optional<TreePlace> Workspace::TreeOf(const fs::path& path) const {
    if (!settings_.root.empty()) {
        const bool isInside = IsBelow(settings_.root, path) || IsBelow(settings_.alternative, path);
        return isInside ? std::optional(TreePlace{settings_.root, settings_.alternative})
                        : std::nullopt;
    }
    const fs::path root = RootAbove(path);
    return root.empty() || root == root.root_path() ? std::nullopt
                                                    : std::optional(TreePlace{root, {}});
}

Snapshot Workspace::Look(const TreePlace& tree) const {
    lm_tree::Overlay overlay;
    for (const auto& [uri, text] : texts_) {
        const auto path = PathOfUri(uri);
        if (path && (IsBelow(tree.root, *path) || IsBelow(tree.alternative, *path))) {
            overlay.insert_or_assign(*path, text.Bytes());
        }
    }
    return {tree, settings_, std::move(overlay), checkpoint_};
}

}  // namespace lm_lsp
