// Commands that take texts to translators and back, for any format.
#pragma once

#include "Command.h"
#include "exchange/Format.h"

namespace localize {

/// Who has the commands.
struct ExchangeProgram {
    const char* name;     // of the program, before its messages
    const char* command;  // how they are called: "localize-po"
    const lm_exchange::Format& format;
};

/// @param program  its format has to outlive `chosen`.
void AddExportCommand(CLI::App& app, Task& chosen, const ExchangeProgram& program);
void AddImportCommand(CLI::App& app, Task& chosen, const ExchangeProgram& program);

}  // namespace localize
