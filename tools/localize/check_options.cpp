// The options of the commands that judge a tree.
#include <map>
#include <memory>

#include "check_command.h"
#include "commands.h"

namespace localize {

namespace {

void AddSelection(CLI::App& command, CheckSettings& settings) {
    AddRoot(command, settings.root);
    AddReference(command, settings.reference);
    AddList(command, "--culture", settings.cultures,
            "Culture to judge, instead of all that the tree names; may be repeated", "ISO");
    AddList(command, "--scope", settings.scopes,
            "Scope to judge, instead of all of the reference; may be repeated", "NAME");
}

void AddOutput(CLI::App& check, CheckSettings& settings) {
    static const std::map<std::string, Format> formats = {{"text", Format::Text},
                                                          {"json", Format::Json},
                                                          {"sarif", Format::Sarif},
                                                          {"github", Format::GitHub}};
    check
        .add_option("--format", settings.format, "Form of the findings: text, json, sarif, github")
        ->type_name("FORM")
        ->transform(CLI::Transformer(formats).description(""));
    check.add_flag_callback(
        "--json", [&settings] { settings.format = Format::Json; }, "The same as --format json");
    check
        .add_option_function<std::string>(
            "--fail-on",
            [&settings](const std::string& least) {
                settings.failsOnWarnings = least == "warning";
            },
            "Least severity that fails the run: error (the default) or warning")
        ->type_name("SEVERITY")
        ->check(CLI::IsMember({"error", "warning"}).description(""));
}

void AddRules(CLI::App& check, CheckSettings& settings) {
    AddList(check, "--enable", settings.enabled, "Rule to judge by in any case", "RULE");
    AddList(check, "--disable", settings.disabled, "Rule not to judge by", "RULE");
    AddList(check, "--param", settings.params, "Parameter that the program supplies everywhere",
            "NAME");
    CLI::Option* const baseline = check
                                      .add_option("--baseline", settings.baseline,
                                                  "File with findings that are known and left out")
                                      ->type_name("FILE");
    CLI::Option* const update =
        check
            .add_flag("--update-baseline", settings.updatesBaseline,
                      "Remove from the baseline what matches nothing any more")
            ->needs(baseline);
    check
        .add_flag("--grow-baseline", settings.growsBaseline,
                  "Also add all findings to the baseline")
        ->needs(baseline)
        ->excludes(update);
    check
        .add_option("--file", settings.file,
                    "Judge standard input in the place of the file PATH: --file PATH -")
        ->type_name("PATH -")
        ->expected(2);
}

}  // namespace

void AddCheckCommands(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<CheckSettings>();
    CLI::App& check = AddCommand(app, chosen,
                                 {"check", "Prove a tree right, or tell what is wrong",
                                  "0 clean, 1 findings that fail the run, 2 could not run",
                                  "localize check --root texts --format github --fail-on warning"},
                                 ThatRuns([settings] { return RunCheck(*settings); }));
    AddSelection(check, *settings);
    AddAlternative(check, settings->alternative);
    AddOutput(check, *settings);
    AddRules(check, *settings);
    // The library reads a file only for the program as a whole.
    app.set_config("--config", "", "")->group("");
    app.allow_config_extras(false);
    check.fallthrough();
    check.footer("  --config FILE               Options in a file, in its section [check]\n\n" +
                 check.get_footer());

    const auto acceptSettings = std::make_shared<CheckSettings>();
    CLI::App& accept = AddCommand(
        app, chosen,
        {"accept", "Record that translations fit the reference text as it is now",
         "0 recorded, 2 could not run", "localize accept --root texts --culture de Button.Cancel"},
        ThatRuns([acceptSettings] {
            RunAccept(*acceptSettings);
            return true;
        }));
    AddSelection(accept, *acceptSettings);
    accept.add_option("KEY", acceptSettings->keys, "Keys of texts; all when there are none")
        ->type_name("");
}

}  // namespace localize
