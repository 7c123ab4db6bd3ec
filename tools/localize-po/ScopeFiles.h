// Which PO file belongs to which scope.
#pragma once

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

    /// @param scopes  that there are, the common one aside.
    std::vector<File> Files(const std::vector<std::string>& scopes) const;

    /// Adds the options that fill it.
    void AddTo(CLI::App& command);
};

}  // namespace localize_po
