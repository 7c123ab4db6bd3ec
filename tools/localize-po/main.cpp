// localize-po: takes the texts of a localisation tree to translators and back, as PO files.
#include <malloc.h>

#include "Program.h"
#include "commands.h"

int main(int argc, char** argv) {
#ifdef M_MXFAST
    // Catalogs are many small texts that are given back together: to keep them for reuse, and join them later,
    // takes a tenth of the time.
    mallopt(M_MXFAST, 0);
#endif
    return localize::RunProgram(
        {"localize-po",
         "Takes the texts of a localisation tree to translators and back, as PO files.",
         "Exit status: 0 done, 1 some texts could not be imported, 2 could not run.\n"
         "Example: localize-po export --root texts --culture de --scope main de.po\n"
         "'localize-po COMMAND --help' tells all about a command.",
         &localize_po::AddAllCommands},
        argc, argv);
}
