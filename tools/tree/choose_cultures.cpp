#include "tree/choose_cultures.h"

#include <stdexcept>
#include <utility>

#include "localization_manager/tree_layout.h"
#include "tree/path_text.h"

namespace lm_tree {

CultureName NamedCulture(const std::string& name) {
    auto culture = CultureOfName(name);
    if (!culture) {
        throw std::invalid_argument("unknown culture '" + name + "'");
    }
    return std::move(*culture);
}

CultureName RequestedCulture(const std::string& name) {
    CultureName culture = NamedCulture(name);
    if (!culture.culture) {
        throw std::invalid_argument("'" + name + "' is no culture that a program asks for");
    }
    return culture;
}

CultureName ChooseReference(const Tree& tree, const std::string& name) {
    if (name.empty()) {
        return NamedCulture(tree.HasDirectory("en")
                                ? "en"
                                : Utf8Of(localization_manager::tree_layout::kNeutralDirectory));
    }
    CultureName reference = NamedCulture(name);
    if (!tree.HasDirectory(reference.name)) {
        throw std::invalid_argument("the tree has no directory '" + reference.name +
                                    "' for the reference");
    }
    return reference;
}

}  // namespace lm_tree
