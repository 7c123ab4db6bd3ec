// What cultures are compared with unless somebody asks otherwise.
#pragma once

#include <string>

#include "localization_manager/tree_layout.h"
#include "tree/Tree.h"
#include "tree/path_text.h"

namespace lm_tree {

/// The name of the reference: `en` where the tree has it, else that of the neutral texts.
inline std::string UsualReference(const Tree& tree) {
    return tree.HasDirectory("en") ? "en"
                                   : Utf8Of(localization_manager::tree_layout::kNeutralDirectory);
}

}  // namespace lm_tree
