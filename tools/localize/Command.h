// How a command of the tool is made known.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "CannotRunError.h"
#include "UsageError.h"

namespace localize {

/// What the chosen command does, once its options are read.
/// @return whether nothing failed and nothing was found.
/// @throws UsageError, CannotRunError, or anything else when it fails.
using Task = std::function<bool()>;

/// The end of a command's help.
struct CommandHelp {
    std::string name;
    std::string description;
    std::string statuses;  // what the exit status says
    std::string example;
};

/// For commands that judge or write files.
template <class Run>
Task ThatRuns(Run run) {
    return [run] {
        try {
            return run();
        } catch (const UsageError&) {
            throw;
        } catch (const std::runtime_error& error) {
            throw CannotRunError(error.what());
        } catch (const std::invalid_argument& error) {
            throw UsageError(error.what());
        }
    };
}

/// Adds a command that leaves `run` in `chosen` when it is the one.
inline CLI::App& AddCommand(CLI::App& app, Task& chosen, const CommandHelp& help, Task run) {
    CLI::App& command = *app.add_subcommand(help.name, help.description);
    command.callback([&chosen, run = std::move(run)] { chosen = run; });
    command.footer("Exit status: " + help.statuses + ".\nExample: " + help.example);
    return command;
}

// Options that mean the same everywhere.

inline CLI::Option& AddRoot(CLI::App& command, std::string& root) {
    return *command.add_option("--root", root, "Directory of the localisation tree")
                ->type_name("DIR")
                ->required();
}

inline void AddAlternative(CLI::App& command, std::string& alternative) {
    command.add_option("--alt", alternative, "Directory of a tree that is searched first")
        ->type_name("DIR");
}

inline CLI::Option& AddReference(CLI::App& command, std::string& reference) {
    return *command
                .add_option("--reference", reference,
                            "Culture that the others are compared with, or neutral; en where the "
                            "tree has it, else neutral")
                ->type_name("ISO");
}

/// An option that may be repeated, with one value each time.
inline CLI::Option& AddList(CLI::App& command, const char* name, std::vector<std::string>& values,
                            const char* description, const char* type) {
    return *command.add_option(name, values, description)->type_name(type)->allow_extra_args(false);
}

}  // namespace localize
