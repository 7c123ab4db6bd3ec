// The text that a request is about.
#pragma once

#include <memory>
#include <optional>

#include "lsp/Json.h"
#include "lsp/Snapshot.h"
#include "lsp/Workspace.h"
#include "source/Document.h"

namespace lm_lsp {

/// A file of texts: of a tree, or open and of none.
class Target {
public:
    /// @param params  with a `textDocument`.
    /// @throws RequestError for a file that is not open and of no tree, or cannot be read.
    Target(const Workspace& workspace, const Json& params);

    /// False for a plural rule, which has nothing else either.
    bool HasTexts() const noexcept { return document_ != nullptr; }

    const lm_source::Document& Document() const noexcept { return *document_; }

    /// Null for a text of no tree.
    const Snapshot* InTree() const noexcept { return snapshot_ ? &*snapshot_ : nullptr; }

    /// Its number in the tree; there is one.
    lm_tree::FileId File() const noexcept { return file_; }
    const lm_tree::TreeFile& TreeFile() const { return snapshot_->GetTree().Files()[file_]; }

    /// The offset of the position at the end of a path of members.
    std::uint32_t OffsetOf(const Json& value, const std::string& path) const;

    /// The range there, whatever the order of its ends.
    lm_source::Range RangeOf(const Json& value, const std::string& path) const;

    const Workspace& GetWorkspace() const noexcept { return workspace_; }

    /// What the editor calls it, and another file of its tree.
    const std::string& Uri() const noexcept { return uri_; }
    std::string UriOf(lm_tree::FileId file) const {
        return workspace_.UriOf(snapshot_->GetTree().FullPath(file));
    }

private:
    const Workspace& workspace_;
    std::string uri_;
    std::optional<Snapshot> snapshot_;
    lm_tree::FileId file_ = 0;
    std::unique_ptr<lm_source::Document> alone_;  // a text of no tree
    const lm_source::Document* document_ = nullptr;
};

}  // namespace lm_lsp
