// A tree at one moment: open texts as typed, the rest as on disk.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/TranslationLock.h"
#include "lsp/Settings.h"
#include "source/Document.h"
#include "tree/Tree.h"

namespace lm_lsp {

/// Where a tree lies; absolute, normal paths.
struct TreePlace {
    std::filesystem::path root;
    std::filesystem::path alternative;  // empty for none

    bool operator<(const TreePlace& other) const { return root < other.root; }
};

using Checkpoint = std::function<void()>;

/// Made for one request. Each file is read once.
class Snapshot {
public:
    /// @param settings  must outlive this.
    /// @throws std::runtime_error when the tree cannot be read, std::invalid_argument for a reference
    ///         that there is not.
    Snapshot(TreePlace place, const Settings& settings, lm_tree::Overlay overlay,
             Checkpoint checkpoint);

    const lm_tree::Tree& GetTree() const noexcept { return tree_; }
    const Settings& GetSettings() const noexcept { return settings_; }
    const TreePlace& Place() const noexcept { return place_; }
    const lm_tree::CultureName& Reference() const noexcept { return reference_; }

    /// The cultures that programs ask the tree for.
    const std::vector<lm_tree::CultureName>& Cultures() const noexcept { return cultures_; }

    /// Those that a file of texts answers.
    std::vector<lm_tree::CultureName> CulturesOf(lm_tree::FileId file) const;

    /// How many forms the plural rule of a file's own culture has; empty for the neutral texts, and
    /// while the rule has a mistake.
    std::optional<std::size_t> FormsOf(lm_tree::FileId file) const;

    std::optional<lm_tree::FileId> FileAt(const std::filesystem::path& path) const;

    /// All files with texts.
    std::vector<lm_tree::FileId> Texts() const;

    /// The common texts that references of a file may lead to: of each culture that it answers.
    std::vector<lm_tree::FileId> CommonOf(lm_tree::FileId file) const;

    /// @return null for no file, and for one that cannot be read.
    /// @throws what the checkpoint does.
    const lm_source::Document* Get(std::optional<lm_tree::FileId> file) const;

    /// Ends the request if nobody waits for it any more. Long work calls it between files.
    void Pass() const {
        if (checkpoint_) {
            checkpoint_();
        }
    }

    /// What translations were made from, and its file.
    std::filesystem::path LockPath() const;
    std::string LockText() const;

private:
    TreePlace place_;
    const Settings& settings_;
    lm_tree::Overlay overlay_;
    Checkpoint checkpoint_;
    lm_tree::Tree tree_;
    lm_tree::CultureName reference_;
    std::vector<lm_tree::CultureName> cultures_;
    mutable std::map<lm_tree::FileId, std::unique_ptr<lm_source::Document>> documents_;
};

}  // namespace lm_lsp
