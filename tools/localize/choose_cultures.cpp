#include "choose_cultures.h"

#include <utility>

#include "UsageError.h"
#include "tree/usual_reference.h"

namespace localize {

lm_tree::CultureName CultureOrThrow(const std::string& name) {
    auto culture = lm_tree::CultureOfName(name);
    if (!culture) {
        throw UsageError("unknown culture '" + name + "'");
    }
    return std::move(*culture);
}

lm_tree::CultureName RequestedCulture(const std::string& name) {
    lm_tree::CultureName culture = CultureOrThrow(name);
    if (!culture.culture) {
        throw UsageError("'" + name + "' is no culture that a program asks for");
    }
    return culture;
}

lm_tree::CultureName ReferenceOr(const lm_tree::Tree& tree, const std::string& name) {
    return CultureOrThrow(name.empty() ? lm_tree::UsualReference(tree) : name);
}

}  // namespace localize
