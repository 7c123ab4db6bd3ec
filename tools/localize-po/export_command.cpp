// `export` writes the texts of a culture as PO files.
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

#include "ScopeFiles.h"
#include "UsageError.h"
#include "commands.h"
#include "edit/write_whole.h"
#include "read_text.h"
#include "scope_catalog.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize_po {

namespace {

struct ExportSettings {
    std::string root;
    std::string culture;
    std::string reference;
    bool isTemplate = false;
    ScopeFiles files;
};

void Write(const std::string& path, const std::string& bytes) {
    if (path == localize::kStandardInput) {  // the same name stands for standard output
        std::cout << bytes;
        return;
    }
    const std::filesystem::path file = lm_tree::PathOf(path);
    if (file.has_parent_path()) {
        std::filesystem::create_directories(file.parent_path());
    }
    lm_edit::WriteWhole(file, bytes);
}

bool Export(const ExportSettings& settings) {
    if (settings.isTemplate == !settings.culture.empty()) {
        throw localize::UsageError("either --culture or --template is required");
    }
    const lm_tree::Tree tree(lm_tree::PathOf(settings.root), {});
    std::optional<lm_tree::CultureName> culture;
    if (!settings.isTemplate) {
        culture = lm_tree::RequestedCulture(settings.culture);
    }
    const lm_tree::CultureName reference = lm_tree::ChooseReference(tree, settings.reference);
    for (const ScopeFiles::File& file : settings.files.Files(tree, culture, reference)) {
        const lm_exchange::ScopeTexts texts(tree, culture, reference, file.scope);
        const Catalog catalog =
            CatalogOf(texts, file.scope, culture, [&file](const std::string& warning) {
                std::cerr << "localize-po: warning: " << file.scope << ": " << warning << '\n';
            });
        Write(file.path, catalog.Bytes());
    }
    return true;
}

}  // namespace

void AddExportCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<ExportSettings>();
    CLI::App& command = localize::AddCommand(
        app, chosen,
        {"export", "Write the texts of a culture as PO files", "0 done, 2 could not run",
         "localize-po export --root texts --culture de --scope main de.po\n"
         "         localize-po export --root texts --culture de po/de\n"
         "         localize-po export --root texts --template --scope main main.pot"},
        localize::ThatRuns([settings] { return Export(*settings); }));
    localize::AddRoot(command, settings->root);
    localize::AddReference(command, settings->reference);
    command.add_option("--culture", settings->culture, "Culture whose texts to write")
        ->type_name("ISO");
    command.add_flag("--template", settings->isTemplate,
                     "Write the reference alone, for tools that begin new languages");
    settings->files.AddTo(command);
}

}  // namespace localize_po
