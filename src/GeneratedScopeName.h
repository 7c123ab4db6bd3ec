// Names for scopes whose texts are given in memory.
#pragma once

#include <cstdint>
#include <string>

namespace localization_manager {

/// A random UUID in text form. It labels a source in parse errors; two names made within the same
/// second are equal.
std::u16string GenerateScopeName();

/// The name that is made in a second of the calendar.
std::u16string GenerateScopeName(std::int64_t second);

}  // namespace localization_manager
