// `rename` gives a key another name in all cultures.
#include <iostream>
#include <memory>
#include <system_error>

#include "commands.h"
#include "edit/rename.h"
#include "edit/write_whole.h"
#include "read_lock.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct RenameSettings {
    std::string root;
    std::string reference;
    lm_edit::RenamedKey key;
};

bool Rename(const RenameSettings& settings) {
    const auto root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, {});
    lm_check::TranslationLock lock = ReadLock(root);
    const std::string before = lock.Text();
    const auto changes =
        lm_edit::Rename(tree, settings.key, ChooseReference(tree, settings.reference), lock);
    for (const lm_edit::FileChange& change : changes) {
        lm_edit::WriteInTree(root, change.path, change.bytes);
        std::cout << lm_tree::Utf8Of(change.path) << ": " << change.count
                  << (change.count == 1 ? " place" : " places") << '\n';
    }
    if (lock.Text() != before) {
        lm_edit::WriteInTree(root, root / lm_check::TranslationLock::kFileName, lock.Text());
    }
    return true;
}

}  // namespace

void AddRenameCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RenameSettings>();
    CLI::App& rename = AddCommand(
        app, chosen,
        {"rename", "Rename a key in all cultures, with the references to it",
         "0 renamed, 2 could not run; nothing is changed then, unless a file cannot be written",
         "localize rename --root texts --scope common App.Name Product.Name"},
        ThatRuns([settings] { return Rename(*settings); }));
    AddRoot(rename, settings->root);
    AddReference(rename, settings->reference);
    rename.add_option("--scope", settings->key.scope, "Scope of the key; common for a common one")
        ->type_name("NAME")
        ->required();
    rename.add_option("OLD", settings->key.before, "Key as it is")->type_name("")->required();
    rename.add_option("NEW", settings->key.after, "Key as it shall be")->type_name("")->required();
}

}  // namespace localize
