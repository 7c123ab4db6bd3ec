// `keys` writes the keys of a tree as code, so that a compiler checks them.
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "commands.h"
#include "edit/write_whole.h"
#include "keys/cpp_header.h"
#include "keys/read_keys.h"
#include "read_text.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct KeysSettings {
    std::string root;
    std::string reference;
    std::string nameSpace = lm_keys::CppHeaderSettings().nameSpace;
    std::string output;
};

/// A file that says the same stays as it is, with its time: what is built from it is not built again.
bool IsUpToDate(const std::string& file, const std::string& bytes) {
    std::error_code error;
    const auto size = std::filesystem::file_size(lm_tree::PathOf(file), error);
    return !error && size == bytes.size() && ReadBytes(file) == bytes;
}

bool WriteKeys(const KeysSettings& settings) {
    const lm_tree::Tree tree(lm_tree::PathOf(settings.root), {});
    const lm_tree::CultureName reference = lm_tree::ChooseReference(tree, settings.reference);
    const std::string header =
        CppHeader(lm_keys::ReadKeys(tree, reference), {settings.nameSpace, reference.name});
    if (settings.output.empty()) {
        std::cout << header;
    } else if (!IsUpToDate(settings.output, header)) {
        lm_edit::WriteWhole(lm_tree::PathOf(settings.output), header);
    }
    return true;
}

}  // namespace

void AddKeysCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<KeysSettings>();
    CLI::App& keys =
        AddCommand(app, chosen,
                   {"keys",
                    "Write the keys of a tree as code: a constant per key, a function per text "
                    "whose arguments "
                    "are its parameters",
                    "0 written, or up to date already, 2 could not run",
                    "localize keys --cpp --root texts --reference en --output localized.h"},
                   ThatRuns([settings] { return WriteKeys(*settings); }));
    keys.add_flag("--cpp", "Write a header for C++17")->required();
    AddRoot(keys, settings->root);
    AddReference(keys, settings->reference)
        .description(
            "Culture whose texts name the keys, or neutral; en where the tree has it, else "
            "neutral");
    keys.add_option("--namespace", settings->nameSpace,
                    "Namespace of the code, instead of localized; may be a nested one")
        ->type_name("NAME");
    keys.add_option(
            "--output", settings->output,
            "File to write, instead of standard output; one that says the same is not touched")
        ->type_name("FILE");
}

}  // namespace localize
