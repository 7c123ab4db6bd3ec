// `import` takes what translators changed back into the tree.
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

#include "ScopeFiles.h"
#include "commands.h"
#include "edit/unified_diff.h"
#include "edit/write_whole.h"
#include "import_catalog.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize_po {

namespace {

struct ImportSettings {
    std::string root;
    std::string culture;
    std::string reference;
    bool isDryRun = false;
    ScopeFiles files;
};

/// What becomes of one scope's file.
struct Result {
    std::string po;
    lm_exchange::ScopeTexts texts;
    std::optional<Import> import;
};

void PrintSummary(std::ostream& stream, const Result& result) {
    const Counts& counts = result.import->counts;
    stream << result.po << ": " << result.import->changes.Changed() << " changed, "
           << result.import->changes.Added() << " new, " << counts.unchanged << " unchanged";
    const char* separator = "; skipped: ";
    for (const auto& [count, what] :
         {std::pair(counts.fuzzy, "fuzzy"), std::pair(counts.empty, "untranslated"),
          std::pair(counts.obsolete, "obsolete"), std::pair(counts.outdated, "outdated"),
          std::pair(result.import->errors.size(), "impossible")}) {
        if (count != 0) {
            stream << separator << count << ' ' << what;
            separator = ", ";
        }
    }
    stream << '\n';
}

class ImportRun {
public:
    explicit ImportRun(const ImportSettings& settings)
        : settings_(settings),
          root_(lm_tree::PathOf(settings.root)),
          tree_(root_, {}),
          culture_(lm_tree::RequestedCulture(settings.culture)),
          reference_(lm_tree::ChooseReference(tree_, settings.reference)) {}

    /// Nothing is written unless all files are good.
    bool Run() {
        std::vector<std::unique_ptr<Result>> results;
        for (const auto& file : settings_.files.Files(tree_, culture_, reference_)) {
            results.push_back(ResultOf(file));
        }
        bool all = true;
        for (const auto& result : results) {
            Finish(*result);
            all = all && result->import->errors.empty();
        }
        return all;
    }

private:
    std::unique_ptr<Result> ResultOf(const ScopeFiles::File& file) const {
        const Catalog catalog = Catalog::Read(file.path);
        // Made where it stays: the changes refer to the texts.
        auto result = std::make_unique<Result>(Result{
            file.path, lm_exchange::ScopeTexts(tree_, culture_, reference_, file.scope), {}});
        try {
            result->import.emplace(ImportCatalog(catalog, result->texts, file.scope, culture_));
        } catch (const std::runtime_error& error) {
            throw std::runtime_error("'" + file.path + "' cannot be imported: " + error.what());
        }
        return result;
    }

    void Finish(const Result& result) const {
        for (const std::string& error : result.import->errors) {
            std::cerr << "localize-po: " << error << '\n';
        }
        const auto edits = result.import->changes.Edits();
        const std::string_view before = result.texts.Own().Bytes();
        if (settings_.isDryRun) {
            std::cout << lm_edit::UnifiedDiff(lm_tree::Utf8Of(result.texts.OwnPath()), before,
                                              edits);
        } else if (!edits.empty()) {
            const std::string after = Apply(before, edits);
            if (!lm_source::Document(after).Mistakes().empty()) {
                throw std::logic_error("importing would make the file faulty");
            }
            lm_edit::WriteInTree(root_, result.texts.OwnPath(), after);
        }
        PrintSummary(settings_.isDryRun ? std::cerr : std::cout, result);
        if (!result.texts.HasOwnFile() && !edits.empty()) {
            std::cerr << "localize-po: '" << lm_tree::Utf8Of(result.texts.OwnPath())
                      << "' is new; 'localize add-missing' adds the keys that it lacks\n";
        }
    }

    const ImportSettings& settings_;
    const std::filesystem::path root_;
    const lm_tree::Tree tree_;
    const lm_tree::CultureName culture_;
    const lm_tree::CultureName reference_;
};

}  // namespace

void AddImportCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<ImportSettings>();
    CLI::App& command = localize::AddCommand(
        app, chosen,
        {"import", "Take over what translators changed in PO files; nothing else is touched",
         "0 done, 1 some texts cannot be said in our files, 2 a PO file is not good and nothing "
         "was changed",
         "localize-po import --root texts --culture de --scope main de.po\n"
         "         localize-po import --root texts --culture de --dry-run po/de"},
        localize::ThatRuns([settings] { return ImportRun(*settings).Run(); }));
    localize::AddRoot(command, settings->root);
    localize::AddReference(command, settings->reference);
    command.add_option("--culture", settings->culture, "Culture whose texts they are")
        ->type_name("ISO")
        ->required();
    command.add_flag("--dry-run", settings->isDryRun, "Print what would change, and write nothing");
    settings->files.AddTo(command);
}

}  // namespace localize_po
