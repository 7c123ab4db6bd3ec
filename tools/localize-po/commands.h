// All commands of the program. Each stands in a file of its own.
#pragma once

#include "Command.h"

namespace localize_po {

using localize::Task;

void AddExportCommand(CLI::App& app, Task& chosen);
void AddImportCommand(CLI::App& app, Task& chosen);
void AddAdoptCommand(CLI::App& app, Task& chosen);

/// In the order in which --help names them.
inline void AddAllCommands(CLI::App& app, Task& chosen) {
    AddExportCommand(app, chosen);
    AddImportCommand(app, chosen);
    AddAdoptCommand(app, chosen);
}

}  // namespace localize_po
