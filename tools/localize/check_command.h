// The commands that judge a tree; they need no module.
#pragma once

#include "CheckSettings.h"

namespace localize {

/// Prints what is wrong with a tree.
/// @return whether the run passes.
/// @throws UsageError, std::invalid_argument, std::runtime_error
bool RunCheck(const CheckSettings& settings);

/// Records which reference texts the translations were made from.
/// @throws UsageError, std::invalid_argument, std::runtime_error
void RunAccept(const CheckSettings& settings);

}  // namespace localize
