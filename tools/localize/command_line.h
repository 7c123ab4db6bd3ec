// Reads the command line.
#pragma once

#include "Command.h"
#include "Program.h"

namespace localize {

/// @return what to do; empty when it was to print help or the version.
/// @throws UsageError
Task ParseCommandLine(const Program& program, int argc, const char* const* argv);

}  // namespace localize
