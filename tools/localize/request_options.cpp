#include "request_options.h"

#include "UsageError.h"
#include "localization_manager/host/text.h"
#include "read_text.h"

namespace localize {

namespace {

/// Interfaces and files of texts speak Unicode: another encoding would be replaced on the way, and
/// nothing found.
void RequireUtf8(const char* option, const std::string& text, bool isDirectory = false) {
    namespace host = localization_manager::host;
    if (host::ToUtf8(host::ToUtf16(text)) != text) {
        throw UsageError(std::string(option) + ": '" + text + "' is not UTF-8" +
                         (isDirectory ? "; reach the directory through a symbolic link whose name "
                                        "is, or rename it"
                                      : ""));
    }
}

}  // namespace

CLI::App& AddRequestCommand(CLI::App& app, Task& chosen, const CommandHelp& help,
                            RequestSettings& settings, Task run) {
    CLI::App& command = AddCommand(app, chosen, help, [&settings, run = std::move(run)] {
        RequireValid(settings);
        return run();
    });
    AddRoot(command, settings.root);
    AddAlternative(command, settings.alternative);
    command.add_option("--culture", settings.culture, "Culture, such as en, pt-br or zh-Hans")
        ->type_name("ISO")
        ->required();
    command.add_option("--scope", settings.scope, "Name of the source of the texts")
        ->type_name("NAME")
        ->required();
    command.add_option("--module", settings.module, "Module to load")->type_name("FILE");
    command.add_flag("--any-names", settings.anyNames,
                     "Allow scopes, cultures and files whose names lead out of the tree");
    return command;
}

CLI::Option& AddNames(CLI::App& command, RequestSettings& settings, const char* what,
                      const char* description) {
    return *command.add_option(what, settings.names, description)->type_name("")->required();
}

void AddJson(CLI::App& command, bool& json) {
    command.add_flag("--json", json, "Print JSON, for programs");
}

void RequireValid(const RequestSettings& settings) {
    if (settings.scope.empty() && settings.buffer.empty()) {
        throw UsageError("--scope is required without --buffer");
    }
    if (settings.buffer == kStandardInput && settings.commonBuffer == kStandardInput) {
        throw UsageError("standard input cannot be both --buffer and --common-buffer");
    }
    RequireUtf8("--root", settings.root, true);
    RequireUtf8("--alt", settings.alternative, true);
    RequireUtf8("--culture", settings.culture);
    RequireUtf8("--scope", settings.scope);
    for (const std::string& name : settings.names) {
        RequireUtf8("KEY or FILE", name);
    }
    for (const auto& [name, text] : settings.params) {
        RequireUtf8("--param", name);
        RequireUtf8("--param", text);
    }
}

}  // namespace localize
