// `lsp` serves editors.
#include <iostream>
#include <memory>

#include "UnsavedTexts.h"
#include "commands.h"
#include "lsp/serve.h"

namespace localize {

namespace {

bool ServeEditor(const std::string& module) {
    UnsavedTexts texts(module);
    // Input is read by a thread of its own, which must not touch output.
    std::cin.tie(nullptr);
    return lm_lsp::Serve(
        std::cin, std::cout, LOCALIZE_VERSION,
        [&texts](const lm_lsp::EngineRequest& request) { return texts.Ask(request); });
}

}  // namespace

void AddLspCommand(CLI::App& app, Task& chosen) {
    const auto module = std::make_shared<std::string>();
    CLI::App& lsp = AddCommand(app, chosen,
                               {"lsp", "Serve an editor: a language server on standard input",
                                "0 ended by the editor, 1 the stream ended or was broken",
                                "localize lsp, started by an editor"},
                               [module] { return ServeEditor(*module); });
    lsp.add_option("--module", *module, "Module to load")->type_name("FILE");
}

}  // namespace localize
