#include "tree/Tree.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <set>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "IResourceProvider.h"
#include "TreeLayout.h"
#include "tree/TreeReader.h"
#include "tree/path_text.h"

namespace lm_tree {

namespace fs = std::filesystem;
namespace layout = LocalizationManager::File;

namespace {

[[noreturn]] void ThrowUnreadable(const std::string& reason) {
    throw std::runtime_error("cannot be read: " + reason);
}

}  // namespace

std::string TextsPath(std::string_view directory, std::string_view scope) {
    return std::string(directory)
        .append(1, '/')
        .append(Utf8Of(layout::kTextsDirectory))
        .append(1, '/')
        .append(scope)
        .append(Utf8Of(layout::kTextsExtension));
}

const std::string& CommonScope() {
    static const std::string name =
        Utf8Of(LocalizationManager::StringLocalizing::Pipeline::kCommonResourceName);
    return name;
}

Tree::Tree(fs::path root, fs::path alternative, Overlay overlay)
    : root_(std::move(root)), alternative_(std::move(alternative)), overlay_(std::move(overlay)) {
    TreeReader(*this).Read();
}

std::vector<Side> Tree::Sides() const {
    return HasAlternative() ? std::vector<Side>{Side::Alternative, Side::Root}
                            : std::vector<Side>{Side::Root};
}

bool Tree::HasDirectory(std::string_view directory) const {
    return directories_.count(directory) != 0;
}

std::vector<std::string> Tree::ScopesOf(const CultureName& culture) const {
    std::set<std::string> scopes;
    for (const TreeFile& file : files_) {
        if (file.kind == FileKind::Texts && file.scope != CommonScope() &&
            std::count(culture.directories.begin(), culture.directories.end(), file.directory) !=
                0) {
            scopes.insert(file.scope);
        }
    }
    return {scopes.begin(), scopes.end()};
}

std::optional<FileId> Tree::Answer(const CultureName& culture, std::string_view scope) const {
    for (const Side side : Sides()) {
        for (const std::string& directory : culture.directories) {
            if (const auto file = FindFile(side, TextsPath(directory, scope))) {
                return file;
            }
        }
    }
    return std::nullopt;
}

std::optional<FileId> Tree::RuleOf(const CultureName& culture) const {
    if (!culture.culture) {
        return std::nullopt;
    }
    const LocalizationManager::StringLocalizing::Model::PluralFormRuleId id(*culture.culture);
    for (const auto& directories : layout::PluralRuleDirectories(id)) {
        std::string path;
        for (const auto& directory : directories) {
            path += Utf8Of(directory) + '/';
        }
        if (const auto file = FindFile(Side::Root, path + Utf8Of(layout::kPluralRuleFile))) {
            return file;
        }
    }
    return std::nullopt;
}

/// On systems that do not distinguish letter case, names may differ in it.
std::optional<FileId> Tree::FindFile(Side side, const std::string& path) const {
    const auto found = byPath_.find({side, path});
    if (found != byPath_.end()) {
        return found->second;
    }
    std::error_code error;
    const fs::path full = FullPath(side, path);
    if (!fs::exists(full, error)) {
        return std::nullopt;
    }
    for (FileId file = 0; file < files_.size(); ++file) {
        if (files_[file].side == side && fs::equivalent(FullPath(file), full, error)) {
            return file;
        }
    }
    return std::nullopt;
}

std::vector<std::pair<Side, std::string>> Tree::ResourcesOf(const CultureName& culture,
                                                            std::string_view scope) const {
    std::vector<std::pair<Side, std::string>> resources;
    const std::string neutral = Utf8Of(layout::kNeutralDirectory);
    for (const Side side : Sides()) {
        for (const std::string& directory : culture.directories) {
            const std::string base = directory + '/' + std::string(scope);
            std::error_code error;
            if (directory == neutral || !fs::is_directory(FullPath(side, base), error)) {
                continue;
            }
            auto entry = fs::recursive_directory_iterator(
                FullPath(side, base), fs::directory_options::skip_permission_denied, error);
            for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
                std::error_code ignored;
                if (entry->is_regular_file(ignored)) {
                    resources.emplace_back(
                        side, base + '/' +
                                  Utf8Of(entry->path().lexically_relative(FullPath(side, base))));
                }
            }
        }
    }
    std::sort(resources.begin(), resources.end());
    return resources;
}

bool Tree::FindsResource(const CultureName& culture, std::string_view path) const {
    const std::vector<Side> sides = Sides();
    return std::any_of(sides.begin(), sides.end(), [&](Side side) {
        return std::any_of(
            culture.directories.begin(), culture.directories.end(), [&](const auto& directory) {
                std::error_code error;
                return fs::exists(FullPath(side, directory + '/' + std::string(path)), error);
            });
    });
}

std::string Tree::Read(FileId file) const {
    const fs::path path = FullPath(file);
    const auto unsaved = overlay_.find(fs::absolute(path).lexically_normal());
    if (unsaved != overlay_.end()) {
        return unsaved->second;
    }
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error) {
        ThrowUnreadable(error.message());
    }
    if (!fs::is_regular_file(status)) {  // to open anything else might wait
        ThrowUnreadable("not a regular file");
    }
    const auto size = static_cast<std::size_t>(fs::file_size(path, error));
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    std::string bytes(error ? 0 : size, '\0');
    if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())) && !stream.eof()) {
        ThrowUnreadable(std::generic_category().message(errno));
    }
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

fs::path Tree::FullPath(Side side, std::string_view path) const {
    return (side == Side::Root ? root_ : alternative_) / PathOf(path);
}

}  // namespace lm_tree
