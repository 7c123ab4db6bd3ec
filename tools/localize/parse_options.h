// Reads the command line.
#pragma once

#include <optional>

#include "Options.h"

namespace localize {

/// @return nothing when the user asked for help or the version, which has then been printed.
/// @throws UsageError
std::optional<Options> ParseOptions(int argc, const char* const* argv);

}  // namespace localize
