// `import` takes what translators changed back into the tree.
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

#include "ScopeFiles.h"
#include "edit/unified_diff.h"
#include "edit/write_whole.h"
#include "exchange/import_file.h"
#include "exchange_commands.h"
#include "read_lock.h"
#include "read_text.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

/// Nobody's scope is larger.
constexpr std::size_t kLargestFile = std::size_t{1} << 28;

struct ImportSettings {
    std::string root;
    std::string culture;
    std::string reference;
    bool isDryRun = false;
    ScopeFiles files;
};

/// What becomes of one scope's file.
struct Result {
    std::string path;
    lm_exchange::ScopeTexts texts;
    std::optional<lm_exchange::Import> import;
};

void PrintSummary(std::ostream& stream, const Result& result, const char* unfinished) {
    const lm_exchange::Counts& counts = result.import->counts;
    stream << result.path << ": " << result.import->changes.Changed() << " changed, "
           << result.import->changes.Added() << " new, " << counts.unchanged << " unchanged";
    const char* separator = "; skipped: ";
    for (const auto& [count, what] :
         {std::pair(counts.unfinished, unfinished), std::pair(counts.empty, "untranslated"),
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
    ImportRun(const ImportSettings& settings, const ExchangeProgram& program)
        : settings_(settings),
          program_(program),
          root_(lm_tree::PathOf(settings.root)),
          tree_(root_, {}),
          culture_(lm_tree::RequestedCulture(settings.culture)),
          reference_(lm_tree::ChooseReference(tree_, settings.reference)),
          lock_(ReadLock(root_)) {}

    /// Nothing is written unless all files are good.
    bool Run() {
        std::vector<std::unique_ptr<Result>> results;
        for (const auto& file : settings_.files.Files(tree_, culture_, reference_, program_)) {
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
        const lm_exchange::TranslatedFile translated =
            program_.format.Read(file.path, ReadBytes(file.path, kLargestFile));
        // Made where it stays: the changes refer to the texts.
        auto result = std::make_unique<Result>(
            Result{file.path,
                   lm_exchange::ScopeTexts(tree_, culture_, reference_, file.scope, lock_),
                   {}});
        try {
            result->import.emplace(ImportFile(translated, program_.format, result->texts));
        } catch (const std::runtime_error& error) {
            throw std::runtime_error("'" + file.path + "' cannot be imported: " + error.what());
        }
        return result;
    }

    void Finish(const Result& result) const {
        for (const std::string& error : result.import->errors) {
            std::cerr << program_.name << ": " << error << '\n';
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
        PrintSummary(settings_.isDryRun ? std::cerr : std::cout, result,
                     program_.format.GetWords().unfinished);
        if (!result.texts.HasOwnFile() && !edits.empty()) {
            std::cerr << program_.name << ": '" << lm_tree::Utf8Of(result.texts.OwnPath())
                      << "' is new; 'localize add-missing' adds the keys that it lacks\n";
        }
    }

    const ImportSettings& settings_;
    const ExchangeProgram& program_;
    const std::filesystem::path root_;
    const lm_tree::Tree tree_;
    const lm_tree::CultureName culture_;
    const lm_tree::CultureName reference_;
    const lm_check::TranslationLock lock_;
};

}  // namespace

void AddImportCommand(CLI::App& app, Task& chosen, const ExchangeProgram& program) {
    const auto settings = std::make_shared<ImportSettings>();
    const lm_exchange::Format::Words& words = program.format.GetWords();
    const std::string name = words.name;
    const std::string extension = words.extension;
    const std::string call = std::string(program.command) + " import --root texts --culture de --";
    CLI::App& command = AddCommand(
        app, chosen,
        {"import",
         "Take over what translators changed in " + name + " files; nothing else is touched",
         "0 done, 1 some texts cannot be said in our files, 2 a file is not good and nothing was "
         "changed",
         call + "scope main de." + extension + "\n         " + call + "dry-run " + extension +
             "/de"},
        ThatRuns([settings, program] { return ImportRun(*settings, program).Run(); }));
    AddRoot(command, settings->root);
    AddReference(command, settings->reference);
    command.add_option("--culture", settings->culture, "Culture whose texts they are")
        ->type_name("ISO")
        ->required();
    command.add_flag("--dry-run", settings->isDryRun, "Print what would change, and write nothing");
    settings->files.AddTo(command, program.format);
}

}  // namespace localize
