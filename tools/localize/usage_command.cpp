// `usage` tells which keys the sources of a program use, and which it misspells.
#include <iostream>
#include <memory>

#include "Answers.h"
#include "commands.h"
#include "counted.h"
#include "keys/Usage.h"
#include "keys/read_keys.h"
#include "program_sources.h"
#include "read_text.h"
#include "request_options.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

using Json = nlohmann::ordered_json;

namespace {

struct UsageSettings {
    std::string root;
    std::string reference;
    std::vector<std::string> ignored;
    bool json = false;
    std::vector<std::string> sources;
};

/// As the findings of `check`.
struct Finding {
    const char* rule;
    std::string file;
    lm_source::Place place;
    std::string key;
    std::string scope;  // empty for a literal
    std::string message;
};

std::vector<Finding> FindingsOf(const lm_keys::Usage& usage) {
    std::vector<Finding> findings;
    for (const auto& [scope, key] : usage.FindUnused()) {
        findings.push_back({"unused-key", key->file, key->place, key->name, *scope,
                            "no source uses the key " + key->name + " of " + *scope +
                                ": remove it, or name it with --ignore"});
    }
    for (const lm_keys::Usage::Unknown& unknown : usage.Unknowns()) {
        findings.push_back({"unknown-key", unknown.file, unknown.place, unknown.literal, "",
                            "no text has the key " + unknown.literal +
                                ", though others begin so: correct it, add the text, or name it "
                                "with --ignore"});
    }
    return findings;
}

void PrintJson(const std::string& reference, std::size_t keys, std::size_t files,
               const std::vector<Finding>& findings) {
    std::cout << R"({"version":1,"reference":)" << Dump(reference) << R"(,"summary":)"
              << Dump({{"keys", keys}, {"files", files}}) << R"(,"findings":[)";
    const char* before = "\n";
    for (const Finding& finding : findings) {
        Json json = {{"rule", finding.rule},
                     {"file", finding.file},
                     {"line", finding.place.line},
                     {"column", finding.place.column},
                     {"key", finding.key}};
        if (!finding.scope.empty()) {
            json["scope"] = finding.scope;
        }
        json["message"] = finding.message;
        std::cout << before << Dump(json);
        before = ",\n";
    }
    std::cout << "\n]}\n";
}

void PrintText(const std::string& reference, std::size_t keys, std::size_t files,
               const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
        std::cout << finding.file << ':' << finding.place.line << ':' << finding.place.column
                  << ": " << finding.message << " [" << finding.rule << "]\n";
    }
    std::cout << Counted(findings.size(), "finding", "findings") << " ("
              << Counted(keys, "key", "keys") << ", " << Counted(files, "file", "files")
              << ", reference " << reference << ")\n";
}

bool FindUsage(const UsageSettings& settings) {
    const lm_tree::Tree tree(lm_tree::PathOf(settings.root), {});
    const lm_tree::CultureName reference = lm_tree::ChooseReference(tree, settings.reference);
    const auto scopes = lm_keys::ReadKeys(tree, reference);
    lm_keys::Usage usage(scopes, settings.ignored);
    const auto sources = ProgramSources(settings.sources);
    for (const auto& [file, language] : sources) {
        usage.Read(file, ReadBytes(file), language);
    }
    std::size_t keys = 0;
    for (const lm_keys::ScopeKeys& scope : scopes) {
        keys += scope.keys.size();
    }
    const auto findings = FindingsOf(usage);
    (settings.json ? PrintJson : PrintText)(reference.name, keys, sources.size(), findings);
    return findings.empty();
}

}  // namespace

void AddUsageCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<UsageSettings>();
    CLI::App& usage = AddCommand(
        app, chosen,
        {"usage",
         "Tell which keys no source of a program uses, and which literals look like keys and are "
         "none",
         "0 neither, 1 some, 2 could not run",
         "localize usage --root texts --ignore 'Error.*' src"},
        ThatRuns([settings] { return FindUsage(*settings); }));
    AddRoot(usage, settings->root);
    AddReference(usage, settings->reference)
        .description(
            "Culture whose texts name the keys, or neutral; en where the tree has it, "
            "else neutral");
    AddList(usage, "--ignore", settings->ignored,
            "Keys not to judge, with * for any characters and ? for one; may be repeated",
            "PATTERN");
    AddJson(usage, settings->json);
    usage.add_option("SOURCES", settings->sources, "Sources of the program: files and directories")
        ->type_name("")
        ->required();
}

}  // namespace localize
