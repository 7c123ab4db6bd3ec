// Names for scopes whose texts are given in memory.
#pragma once

#include <string>

namespace localization_manager {

/// A random UUID in text form. It labels a source in parse errors; two names made within the same
/// second are equal.
std::u16string GenerateScopeName();

}  // namespace localization_manager
