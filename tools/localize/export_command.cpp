// `export` writes the texts of a culture as files for translators.
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "ScopeFiles.h"
#include "UsageError.h"
#include "edit/write_whole.h"
#include "exchange_commands.h"
#include "read_lock.h"
#include "read_text.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct ExportSettings {
    std::string root;
    std::string culture;
    std::string reference;
    bool isTemplate = false;
    ScopeFiles files;
};

void Write(const std::string& path, const std::string& bytes) {
    if (path == kStandardInput) {  // the same name stands for standard output
        if (!(std::cout << bytes).flush()) {
            throw std::runtime_error("cannot write to standard output");
        }
        return;
    }
    const std::filesystem::path file = lm_tree::PathOf(path);
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error && file.has_parent_path()) {
        throw std::runtime_error("cannot write '" + path + "': " + error.message());
    }
    lm_edit::WriteWhole(file, bytes);
}

/// What the file will not show.
std::vector<std::string> WarningsOf(const lm_exchange::ScopeTexts& texts,
                                    const lm_exchange::Format& format) {
    std::vector<std::string> warnings;
    if (texts.Rule() && texts.Rule()->Gap()) {
        warnings.push_back("the rule of " + texts.Culture()->name + " leaves out " +
                           std::to_string(*texts.Rule()->Gap()) +
                           ": translators are told that its last form serves what is left out");
    }
    for (const std::string& key : texts.Surplus()) {
        warnings.push_back("'" + key + "' is not in the reference and is left out");
    }
    for (const lm_exchange::ScopeTexts::Text& text : texts.Texts()) {
        if (!CanHold(format, text)) {
            warnings.push_back("'" + text.key + "' is left out: it holds " +
                               format.GetWords().cannotHold);
        }
    }
    return warnings;
}

bool Export(const ExportSettings& settings, const ExchangeProgram& program) {
    if (settings.isTemplate == !settings.culture.empty()) {
        throw UsageError("either --culture or --template is required");
    }
    const std::filesystem::path root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, {});
    std::optional<lm_tree::CultureName> culture;
    if (!settings.isTemplate) {
        culture = lm_tree::RequestedCulture(settings.culture);
    }
    const lm_tree::CultureName reference = lm_tree::ChooseReference(tree, settings.reference);
    const lm_check::TranslationLock lock = ReadLock(root);
    for (const ScopeFiles::File& file : settings.files.Files(tree, culture, reference, program)) {
        const lm_exchange::ScopeTexts texts(tree, culture, reference, file.scope, lock);
        for (const std::string& warning : WarningsOf(texts, program.format)) {
            std::cerr << program.name << ": warning: " << file.scope << ": " << warning << '\n';
        }
        Write(file.path, program.format.Write(texts));
    }
    return true;
}

}  // namespace

void AddExportCommand(CLI::App& app, Task& chosen, const ExchangeProgram& program) {
    const auto settings = std::make_shared<ExportSettings>();
    const lm_exchange::Format::Words& words = program.format.GetWords();
    const std::string extension = words.extension;
    const std::string call = std::string(program.command) + " export --root texts --";
    CLI::App& command = AddCommand(
        app, chosen,
        {"export", std::string("Write the texts of a culture as ") + words.name + " files",
         "0 done, 2 could not run",
         call + "culture de --scope main de." + extension + "\n         " + call + "culture de " +
             extension + "/de\n         " + call + "template --scope main main." +
             words.templateExtension},
        ThatRuns([settings, program] { return Export(*settings, program); }));
    AddRoot(command, settings->root);
    AddReference(command, settings->reference);
    command.add_option("--culture", settings->culture, "Culture whose texts to write")
        ->type_name("ISO");
    command.add_flag("--template", settings->isTemplate,
                     "Write the reference alone, for tools that begin new languages");
    settings->files.AddTo(command, program.format);
}

}  // namespace localize
