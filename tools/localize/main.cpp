// localize: prints, checks and edits the texts of a localisation tree.
#include "Program.h"
#include "commands.h"

int main(int argc, char** argv) {
    return localize::RunProgram(
        {"localize", "Prints, checks and edits the texts of a localisation tree.",
         "Exit status: 0 done, 1 not all was answered or something was found, 2 could not run.\n"
         "Example: localize get --root texts --culture de --scope main Greeting\n"
         "'localize COMMAND --help' tells all about a command.",
         &localize::AddAllCommands},
        argc, argv);
}
