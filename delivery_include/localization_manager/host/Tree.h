// A localisation tree, opened.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localization_manager/host/CultureList.h"
#include "localization_manager/host/MissingText.h"
#include "localization_manager/host/Refreshed.h"
#include "localization_manager/host/Texts.h"
#include "localization_manager/host/TreeSettings.h"

namespace localization_manager::host {

/// Gives the texts of its scopes in the cultures of its users. A handle, as `Texts` are: cheap to copy,
/// to be used from several threads at once; the module stays loaded while a tree or texts of it live.
class Tree {
public:
    /// @param root  directory of the tree, UTF-8.
    /// @throws std::runtime_error when the module cannot be loaded; `ResultError`, which is one, when a
    ///         directory does not exist.
    explicit Tree(std::string root, TreeSettings settings = {})
        : tree_(std::make_shared<detail::OpenTree>(std::move(root), std::move(settings))) {}

    /// The texts of a scope. Its sources are read here, the mistakes in them are reported, and
    /// `Texts::State` tells them; nothing is thrown for them. What was opened once stays in memory as long as
    /// the tree; to open it again costs no more than to look for it.
    /// @param scope     name of the scope's source, a file name without ".lt".
    /// @param cultures  the user's; the order is that in which they are asked for a text.
    /// @throws ResultError when a culture is not known, or a name leads out of the tree.
    Texts Open(std::string_view scope, const CultureList& cultures) const {
        return Texts(tree_, scope, cultures);
    }

    /// The cultures that a directory of the tree or of the alternative one has texts for, ordered by name and
    /// written as the directory is; for `CultureChoice`. What is in `neutral` is nobody's own.
    /// @throws std::filesystem::filesystem_error when a directory cannot be read.
    std::vector<std::string> Cultures() const { return tree_->Cultures(); }

    /// Looks whether files have changed, and if so reads all texts anew: at times and sizes of every file
    /// that could answer, not at contents. Whoever asks for texts meanwhile is not held up, and is
    /// answered from the texts before, all of them, or from those after, all of them. When a source that could
    /// be used cannot be used any more, everything stays as it was, and is reported once.
    ///
    /// Starts no thread: a host calls it when it likes, from a timer or a menu.
    /// @throws std::bad_alloc, and std::runtime_error when requests of 255 older states are still going on;
    ///         nothing has changed then, and the next call tries again.
    Refreshed Refresh() const { return tree_->Refresh(); }

    /// The texts that were asked for and not found, each once, ordered by scope, culture and key: at most
    /// 100,000.
    std::vector<MissingText> Missing() const { return tree_->missing().All(); }

private:
    std::shared_ptr<detail::OpenTree> tree_;
};

}  // namespace localization_manager::host
