// Records that translations fit the reference as it is.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "check/CheckOptions.h"
#include "check/TranslationLock.h"
#include "tree/Tree.h"

namespace lm_check {

/// Records the reference text of every translation, and forgets those that are gone.
/// @param options  reference, cultures and scopes.
/// @param keys     empty for all.
/// @return how many translations were recorded.
/// @throws std::invalid_argument for a culture, scope or key that does not exist.
/// @throws std::runtime_error when a file cannot be read.
std::size_t Accept(const lm_tree::Tree& tree, const CheckOptions& options,
                   const std::vector<std::string>& keys, TranslationLock& lock);

}  // namespace lm_check
