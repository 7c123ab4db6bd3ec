// Files that are to be changed.
#pragma once

#include "source/Document.h"
#include "tree/Tree.h"

namespace lm_edit {

/// @throws std::runtime_error when it cannot be read, or has a mistake: what would be changed is not
///         known then.
lm_source::Document ReadDocument(const lm_tree::Tree& tree, lm_tree::FileId file);

}  // namespace lm_edit
