// The cultures that options name, or leave out.
#pragma once

#include <string>

#include "tree/CultureName.h"
#include "tree/Tree.h"

namespace lm_tree {

/// @throws std::invalid_argument when there is no such culture.
CultureName NamedCulture(const std::string& name);

/// The same for one that a program can ask for, which the neutral texts are not.
CultureName RequestedCulture(const std::string& name);

/// What cultures are compared with: the one named, which the tree must have; for an empty name `en`
/// where the tree has it, else the neutral texts.
/// @throws std::invalid_argument
CultureName ChooseReference(const Tree& tree, const std::string& name);

}  // namespace lm_tree
