#include "parse_options.h"

#include <CLI/CLI.hpp>
#include <string>

#include "UsageError.h"
#include "read_text.h"

namespace localize {

namespace {

void AddParam(Options& options, const std::string& param) {
    const std::size_t equals = param.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw CLI::ValidationError("--param", "'" + param + "' is not NAME=VALUE");
    }
    options.params.emplace_back(param.substr(0, equals), param.substr(equals + 1));
}

/// A command, with the options that all of them have. They write to the same `options`, since only
/// one of them is called.
CLI::App& AddCommand(CLI::App& app, Options& options, Command command, const char* name,
                     const char* description) {
    CLI::App& added = *app.add_subcommand(name, description);
    added.callback([&options, command] { options.command = command; });
    added.add_option("--root", options.root, "Directory of the localisation tree")
        ->type_name("DIR")
        ->required();
    added.add_option("--alt", options.alternative, "Directory of a tree that is searched first")
        ->type_name("DIR");
    added.add_option("--culture", options.culture, "Culture, such as en, pt-br or zh-Hans")
        ->type_name("ISO")
        ->required();
    added.add_option("--scope", options.scope, "Name of the source of the texts")
        ->type_name("NAME")
        ->required();
    added.add_option("--module", options.module, "Module to load")->type_name("FILE");
    return added;
}

void AddCommands(CLI::App& app, Options& options) {
    CLI::App& get = AddCommand(app, options, Command::Get, "get", "Print the texts of keys");
    // One value for each --param, so that a key may follow.
    get.add_option_function<std::vector<std::string>>(
           "--param",
           [&options](const std::vector<std::string>& params) {
               for (const std::string& param : params) {
                   AddParam(options, param);
               }
           },
           "Text of an external parameter; may be repeated")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    get.get_option("--scope")->required(false);
    CLI::Option* const buffer =
        get.add_option(
               "--buffer", options.buffer,
               "Texts of the scope, instead of the tree's; - for standard input. --scope is "
               "then optional")
            ->type_name("FILE");
    get.add_option("--common-buffer", options.commonBuffer,
                   "Common texts, instead of the tree's; - for standard input")
        ->type_name("FILE")
        ->needs(buffer);
    get.add_flag("--trace", options.trace, "Tell on standard error how each text came about");
    get.add_option("KEY", options.names, "Keys of texts")->type_name("")->required();

    CLI::App& has = AddCommand(app, options, Command::Has, "has", "Tell whether keys exist");
    has.add_option("KEY", options.names, "Keys of texts")->type_name("")->required();

    CLI::App& path = AddCommand(app, options, Command::Path, "path", "Print the paths of files");
    path.add_option("FILE", options.names, "Resource files of the scope")
        ->type_name("")
        ->required();

    CLI::App& cat = AddCommand(app, options, Command::Cat, "cat", "Print the bytes of a file");
    cat.add_option("FILE", options.names, "Resource file of the scope")
        ->type_name("")
        ->required()
        ->expected(1);
}

/// What the library's rules for single options cannot say.
void CheckSources(const Options& options) {
    if (options.scope.empty() && options.buffer.empty()) {
        throw UsageError("--scope is required without --buffer");
    }
    if (options.buffer == kStandardInput && options.commonBuffer == kStandardInput) {
        throw UsageError("standard input cannot be both --buffer and --common-buffer");
    }
}

}  // namespace

std::optional<Options> ParseOptions(int argc, const char* const* argv) {
    Options options;
    CLI::App app("Prints localised texts and resource files of a localisation tree.", "localize");
    app.set_version_flag("--version", "localize " LOCALIZE_VERSION);
    app.require_subcommand(1);
    AddCommands(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& helpOrVersion) {
        app.exit(helpOrVersion);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    CheckSources(options);
    return options;
}

}  // namespace localize
