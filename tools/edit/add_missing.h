// The keys that a culture's files lack.
#pragma once

#include <string>
#include <vector>

#include "edit/FileChange.h"
#include "tree/Tree.h"

namespace lm_edit {

/// What was found to be missing.
struct MissingKeys {
    std::vector<FileChange> changes;

    /// Files that lack keys as well, but are those of a less specific directory.
    std::vector<std::filesystem::path> others;
};

/// The files of a culture's own directory with the reference's keys that they lack, each with the
/// reference text and as many forms as the culture's rule has, under a comment that says that it is
/// untranslated. A file that nobody but the neutral texts stands in for is made.
/// @param scopes  empty for all of the reference; the common one is always among them.
/// @param keys    empty for all that lack.
/// @throws std::invalid_argument for a reference without texts, and for a scope that it does not have.
/// @throws std::runtime_error when a file cannot be read or has a mistake.
MissingKeys AddMissing(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                       const lm_tree::CultureName& reference,
                       const std::vector<std::string>& scopes,
                       const std::vector<std::string>& keys = {});

}  // namespace lm_edit
