// `add-missing` appends the keys that a culture's files lack.
#include <iostream>
#include <memory>

#include "commands.h"
#include "edit/add_missing.h"
#include "edit/write_whole.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct AddMissingSettings {
    std::string root;
    std::string culture;
    std::string reference;
    std::vector<std::string> scopes;
};

bool AddMissing(const AddMissingSettings& settings) {
    const auto root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, {});
    const lm_tree::CultureName culture = lm_tree::RequestedCulture(settings.culture);
    const auto missing = lm_edit::AddMissing(
        tree, culture, ChooseReference(tree, settings.reference), settings.scopes);
    for (const lm_edit::FileChange& change : missing.changes) {
        lm_edit::WriteInTree(root, change.path, change.bytes);
        std::cout << lm_tree::Utf8Of(change.path) << ": " << change.count
                  << (change.count == 1 ? " key" : " keys") << (change.isNew ? ", new" : "")
                  << '\n';
    }
    for (const auto& path : missing.others) {
        std::cerr << "localize: '" << lm_tree::Utf8Of(path) << "' answers for " << culture.name
                  << " and lacks keys: add them for the culture that it belongs to\n";
    }
    return true;
}

}  // namespace

void AddAddMissingCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<AddMissingSettings>();
    CLI::App& add = AddCommand(
        app, chosen,
        {"add-missing", "Append the reference's keys that a culture's files lack, as untranslated",
         "0 nothing is missing any more, 2 could not run",
         "localize add-missing --root texts --culture fr"},
        ThatRuns([settings] { return AddMissing(*settings); }));
    AddRoot(add, settings->root);
    AddReference(add, settings->reference);
    add.add_option("--culture", settings->culture, "Culture whose files to complete")
        ->type_name("ISO")
        ->required();
    AddList(add, "--scope", settings->scopes,
            "Scope to complete, with the common texts, instead of all; may be repeated", "NAME");
}

}  // namespace localize
