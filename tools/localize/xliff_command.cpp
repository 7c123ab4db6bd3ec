// `xliff` takes texts to translators and back as XLIFF files.
#include "commands.h"
#include "exchange_commands.h"
#include "xliff/XliffFormat.h"

namespace localize {

void AddXliffCommand(CLI::App& app, Task& chosen) {
    static const lm_xliff::XliffFormat format;
    const ExchangeProgram program{"localize", "localize xliff", format};
    CLI::App& xliff =
        *app.add_subcommand("xliff", "Take texts to translators and back, as files of XLIFF 1.2");
    xliff.require_subcommand(1);
    xliff.footer(
        "'localize xliff COMMAND --help' tells all about a command.\n"
        "Example: localize xliff export --root texts --culture de --scope main de.xlf");
    AddExportCommand(xliff, chosen, program);
    AddImportCommand(xliff, chosen, program);
}

}  // namespace localize
