// The cultures that options name, or leave out.
#pragma once

#include <string>

#include "tree/CultureName.h"
#include "tree/Tree.h"

namespace localize {

/// @throws UsageError when there is no such culture.
lm_tree::CultureName CultureOrThrow(const std::string& name);

/// The same for one that a program can ask for, which the neutral texts are not.
lm_tree::CultureName RequestedCulture(const std::string& name);

/// What cultures are compared with: the one named, or the usual one for an empty name.
lm_tree::CultureName ReferenceOr(const lm_tree::Tree& tree, const std::string& name);

}  // namespace localize
