// Reads the command line.
#pragma once

#include "Command.h"

namespace localize {

/// @return what to do; empty when it was to print help or the version.
/// @throws UsageError
Task ParseCommandLine(int argc, const char* const* argv);

}  // namespace localize
