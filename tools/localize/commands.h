// All commands of the tool. Each stands in a file of its own.
#pragma once

#include "Command.h"

namespace localize {

void AddGetCommand(CLI::App& app, Task& chosen);
void AddHasCommand(CLI::App& app, Task& chosen);
void AddPathCommand(CLI::App& app, Task& chosen);
void AddCatCommand(CLI::App& app, Task& chosen);
void AddListCommand(CLI::App& app, Task& chosen);
void AddFormatCommand(CLI::App& app, Task& chosen);
void AddAddMissingCommand(CLI::App& app, Task& chosen);
void AddRenameCommand(CLI::App& app, Task& chosen);
void AddPseudoCommand(CLI::App& app, Task& chosen);
void AddRulesCommand(CLI::App& app, Task& chosen);
void AddReportCommand(CLI::App& app, Task& chosen);
void AddKeysCommand(CLI::App& app, Task& chosen);
void AddUsageCommand(CLI::App& app, Task& chosen);
void AddLspCommand(CLI::App& app, Task& chosen);
void AddXliffCommand(CLI::App& app, Task& chosen);   // where its library is
void AddCheckCommands(CLI::App& app, Task& chosen);  // `check` and `accept`

/// In the order in which --help names them.
inline void AddAllCommands(CLI::App& app, Task& chosen) {
    AddGetCommand(app, chosen);
    AddHasCommand(app, chosen);
    AddPathCommand(app, chosen);
    AddCatCommand(app, chosen);
    AddListCommand(app, chosen);
    AddCheckCommands(app, chosen);
    AddFormatCommand(app, chosen);
    AddAddMissingCommand(app, chosen);
    AddRenameCommand(app, chosen);
    AddPseudoCommand(app, chosen);
    AddRulesCommand(app, chosen);
    AddReportCommand(app, chosen);
    AddKeysCommand(app, chosen);
    AddUsageCommand(app, chosen);
    AddLspCommand(app, chosen);
#ifdef LM_HAS_XLIFF
    AddXliffCommand(app, chosen);
#endif
}

}  // namespace localize
