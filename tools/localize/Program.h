// A program that does what its first argument names.
#pragma once

#include "Command.h"

namespace localize {

struct Program {
    const char* name;
    const char* description;
    const char* footer;  // of its help
    void (*addCommands)(CLI::App& app, Task& chosen);
};

/// @return its exit status. What went wrong is printed.
int RunProgram(const Program& program, int argc, const char* const* argv);

}  // namespace localize
