// `lsp` serves editors.
#include <iostream>

#include "commands.h"
#include "lsp/serve.h"

namespace localize {

void AddLspCommand(CLI::App& app, Task& chosen) {
    AddCommand(app, chosen,
               {"lsp", "Serve an editor: a language server on standard input",
                "0 ended by the editor, 1 the stream ended or was broken",
                "localize lsp, started by an editor"},
               [] {
                   // Input is read by a thread of its own, which must not touch output.
                   std::cin.tie(nullptr);
                   return lm_lsp::Serve(std::cin, std::cout, LOCALIZE_VERSION);
               });
}

}  // namespace localize
