// The options of the commands that ask the module.
#pragma once

#include "Command.h"
#include "RequestSettings.h"

namespace localize {

/// Adds a command with the options that all of them have.
CLI::App& AddRequestCommand(CLI::App& app, Task& chosen, const CommandHelp& help,
                            RequestSettings& settings, Task run);

/// Names of keys or files, at least one.
CLI::Option& AddNames(CLI::App& command, RequestSettings& settings, const char* what,
                      const char* description);

void AddJson(CLI::App& command, bool& json);

/// What the library's rules for single options cannot say.
/// @throws UsageError
void RequireValid(const RequestSettings& settings);

}  // namespace localize
