// A localisation tree on disk, with the alternative one before it if there is one.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tree/CultureName.h"
#include "tree/TreeFile.h"

namespace lm_tree {

/// Texts that stand in for those of files: of an editor, or of standard input.
using Overlay = std::map<std::filesystem::path, std::string>;

/// What stood in the directories when it was made; contents are read when they are asked for. The
/// order in which directories answer is the engine's. May be used from any number of threads.
class Tree {
public:
    /// A directory or file that no request leads to.
    struct Stray {
        Side side = Side::Root;
        std::string path;  // below its tree
        std::string why;   // and what to do
    };

    /// @param alternative  empty for none.
    /// @param overlay      by absolute, normal paths; files that do not exist are added.
    /// @throws std::runtime_error when a directory cannot be read.
    Tree(std::filesystem::path root, std::filesystem::path alternative, Overlay overlay = {});

    /// Texts and plural rules that can be read at all, ordered by side and path.
    const std::vector<TreeFile>& Files() const noexcept { return files_; }

    bool HasAlternative() const noexcept { return !alternative_.empty(); }

    /// The cultures that directories with texts and plural rules name, ordered by name.
    const std::vector<CultureName>& Cultures() const noexcept { return cultures_; }

    /// What cannot be reached whatever the reference is.
    const std::vector<Stray>& Strays() const noexcept { return strays_; }

    /// Whether a directory for texts has this name, though there may be none in it.
    bool HasDirectory(std::string_view directory) const;

    /// The names of all sources that a culture's directories hold; not the common one.
    std::vector<std::string> ScopesOf(const CultureName& culture) const;

    /// The file that answers a culture for a source; empty when there is none.
    std::optional<FileId> Answer(const CultureName& culture, std::string_view scope) const;

    /// The file with the culture's plural rule; empty when the engine's own holds.
    std::optional<FileId> RuleOf(const CultureName& culture) const;

    /// The resource files in the directories of a culture for a source: of each the side, and the
    /// path below the tree. Those of `neutral` are left out, since everybody finds them.
    std::vector<std::pair<Side, std::string>> ResourcesOf(const CultureName& culture,
                                                          std::string_view scope) const;

    /// Whether a culture finds a resource file.
    /// @param path  below a culture's directory.
    bool FindsResource(const CultureName& culture, std::string_view path) const;

    /// The bytes of a file.
    /// @throws std::runtime_error with the reason when it cannot be read.
    std::string Read(FileId file) const;

    std::filesystem::path FullPath(Side side, std::string_view path) const;
    std::filesystem::path FullPath(FileId file) const {
        return FullPath(files_[file].side, files_[file].path);
    }

private:
    friend class TreeReader;

    std::optional<FileId> FindFile(Side side, const std::string& path) const;
    std::vector<Side> Sides() const;

    std::filesystem::path root_;
    std::filesystem::path alternative_;
    Overlay overlay_;
    std::vector<TreeFile> files_;
    std::map<std::pair<Side, std::string>, FileId> byPath_;
    std::set<std::string, std::less<>> directories_;  // for texts
    std::vector<CultureName> cultures_;
    std::vector<Stray> strays_;
};

/// Where a directory has the texts of a source, below its tree.
std::string TextsPath(std::string_view directory, std::string_view scope);

/// The name of the source that all others share.
const std::string& CommonScope();

}  // namespace lm_tree
