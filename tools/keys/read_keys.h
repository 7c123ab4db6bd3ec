// Reads the keys of a tree.
#pragma once

#include <vector>

#include "keys/ScopeKeys.h"
#include "tree/Tree.h"

namespace lm_keys {

/// The keys of all sources that answer a culture: the common ones first, of which there may be none, then
/// the others by name.
/// @throws std::runtime_error with the place when a file cannot be read, has a mistake, or refers to
///         what is not there; and when there are no texts at all.
std::vector<ScopeKeys> ReadKeys(const lm_tree::Tree& tree, const lm_tree::CultureName& reference);

}  // namespace lm_keys
