// The texts that are open, and the trees that they belong to.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "lsp/OpenText.h"
#include "lsp/Settings.h"
#include "lsp/Snapshot.h"

namespace lm_lsp {

class Workspace {
public:
    /// @param checkpoint  called before each file of a tree is read; may throw what ends the request.
    explicit Workspace(Settings settings = {}, Checkpoint checkpoint = {});

    const Settings& GetSettings() const noexcept { return settings_; }

    void Open(const std::string& uri, OpenText text);
    void Close(const std::string& uri);

    /// Null for a text that is not open.
    OpenText* Find(const std::string& uri);
    const OpenText* Find(const std::string& uri) const;

    /// What the editor calls a file.
    std::string UriOf(const std::filesystem::path& path) const;

    /// The tree of the settings; without any, the one that a path of this form lies in.
    /// @return empty for a file of no tree.
    std::optional<TreePlace> TreeOf(const std::filesystem::path& path) const;

    /// Those of all texts that were ever opened.
    const std::set<TreePlace>& Trees() const noexcept { return trees_; }

    Snapshot Look(const TreePlace& tree) const;

private:
    Settings settings_;
    Checkpoint checkpoint_;
    std::map<std::string, OpenText, std::less<>> texts_;  // by their URIs
    std::set<TreePlace> trees_;
};

}  // namespace lm_lsp
