// `report` writes a page about a tree.
#include <iostream>
#include <memory>
#include <set>
#include <sstream>

#include "FindingPaths.h"
#include "ModuleTexts.h"
#include "check/check.h"
#include "commands.h"
#include "edit/write_whole.h"
#include "read_lock.h"
#include "report/write_page.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct ReportSettings {
    std::string root;
    std::string alternative;
    std::string reference;
    std::string output;
    std::string title = "Localisation report";
    std::string module;
};

bool WriteReport(const ReportSettings& settings) {
    const auto root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, lm_tree::PathOf(settings.alternative));
    lm_check::CheckOptions options;
    options.reference = settings.reference;
    const lm_check::Report report = Check(tree, options, ReadLock(root));
    const FindingPaths paths(tree);
    ModuleTexts texts(settings.module, tree, settings.root, settings.alternative);
    const lm_report::Page page = {
        tree,
        report,
        settings.title,
        "localize " LOCALIZE_VERSION,
        [&](std::size_t culture, std::size_t scope, const std::string& key, int number) {
            return texts.Ask(report.cultures[culture], report.scopes[scope], key, number);
        },
        [&](const lm_check::Location& location) { return paths.Shown(location); }};
    std::ostringstream html;
    WritePage(html, page);
    lm_edit::WriteWhole(lm_tree::PathOf(settings.output), html.str());
    return true;
}

}  // namespace

void AddReportCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<ReportSettings>();
    CLI::App& report = AddCommand(
        app, chosen,
        {"report", "Write a page: cultures by scopes, findings, and all texts side by side",
         "0 written, 2 could not run", "localize report --root texts --output report.html"},
        ThatRuns([settings] { return WriteReport(*settings); }));
    AddRoot(report, settings->root);
    AddAlternative(report, settings->alternative);
    AddReference(report, settings->reference);
    report.add_option("--output", settings->output, "File to write; it needs nothing else")
        ->type_name("FILE.html")
        ->required();
    report.add_option("--title", settings->title, "Title of the page")->type_name("TEXT");
    report.add_option("--module", settings->module, "Module to load")->type_name("FILE");
}

}  // namespace localize
