// Which PO file belongs to which scope.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "tree/Tree.h"

namespace localize_po {

/// One file for the scope that is named, or a directory with a file for each.
struct ScopeFiles {
    std::string scope;  // empty for all
    std::string path;

    struct File {
        std::string scope;
        std::string path;
    };

    /// Without a scope those of the reference. What a less specific culture answers is that one's: it
    /// is left out, and said so.
    /// @param culture  empty for a template.
    std::vector<File> Files(const lm_tree::Tree& tree,
                            const std::optional<lm_tree::CultureName>& culture,
                            const lm_tree::CultureName& reference) const;

    /// Adds the options that fill it.
    void AddTo(CLI::App& command);
};

}  // namespace localize_po
