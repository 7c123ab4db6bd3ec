// All commands of the program.
#pragma once

#include "Command.h"
#include "PoFormat.h"
#include "exchange_commands.h"

namespace localize_po {

using localize::Task;

void AddAdoptCommand(CLI::App& app, Task& chosen);

/// In the order in which --help names them.
inline void AddAllCommands(CLI::App& app, Task& chosen) {
    static const PoFormat format;
    const localize::ExchangeProgram program{"localize-po", "localize-po", format};
    AddExportCommand(app, chosen, program);
    AddImportCommand(app, chosen, program);
    AddAdoptCommand(app, chosen);
}

}  // namespace localize_po
