// Another name for a key, wherever it stands.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/TranslationLock.h"
#include "edit/FileChange.h"
#include "tree/Tree.h"

namespace lm_edit {

struct RenamedKey {
    std::string scope;
    std::string before;
    std::string after;
};

/// Renames a key of a scope in all cultures, with the references that reach it: those of its own file,
/// and of a common key also those of every scope without a key of that name. No text changes.
/// @param lock  what translations were made from; follows the keys and the texts that refer to them.
/// @param reference  the culture that the lock was made from.
/// @throws std::invalid_argument when there is no such key, the new name is none or is taken, or some
///         request would be answered otherwise.
/// @throws std::runtime_error when a file cannot be read or has a mistake.
std::vector<FileChange> Rename(const lm_tree::Tree& tree, const RenamedKey& key,
                               const lm_tree::CultureName& reference,
                               lm_check::TranslationLock& lock);

}  // namespace lm_edit
