// Proves a localisation tree right, or tells what is wrong.
#pragma once

#include "check/CheckOptions.h"
#include "check/Report.h"
#include "check/TranslationLock.h"
#include "tree/Tree.h"

namespace lm_check {

/// Judges every request that the tree names: of each culture, each scope of the reference, each key.
/// The findings are the same whatever the number of threads.
/// @param lock  what the translations were made from; not judged together with an alternative tree.
/// @throws std::invalid_argument for a culture or scope that does not exist.
/// @throws std::runtime_error
Report Check(const lm_tree::Tree& tree, const CheckOptions& options, const TranslationLock& lock);

}  // namespace lm_check
