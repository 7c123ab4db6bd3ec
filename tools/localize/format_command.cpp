// `format` brings localisation files into the one style.
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "commands.h"
#include "edit/format.h"
#include "edit/write_whole.h"
#include "localization_manager/tree_layout.h"
#include "read_text.h"
#include "source/mistake_text.h"
#include "tree/path_text.h"

namespace localize {

namespace fs = std::filesystem;

namespace {

struct FormatSettings {
    bool checks = false;
    std::vector<std::string> files;
};

/// The tree that a file lies in: texts stand two directories below it. Any other file stands alone.
fs::path TreeOf(const fs::path& file) {
    const fs::path directory = fs::absolute(file).lexically_normal().parent_path();
    return directory.filename() == localization_manager::tree_layout::kTextsDirectory
               ? directory.parent_path().parent_path()
               : directory;
}

bool FormatFile(const FormatSettings& settings, const std::string& file) {
    const lm_source::Document document(ReadBytes(file));
    if (document.GetEncoding().isUtf16) {
        throw std::runtime_error(ShownName(file) + ": is UTF-16: save it as UTF-8");
    }
    if (!document.Mistakes().empty()) {
        throw std::runtime_error(TextOf(document, document.Mistakes().front(), ShownName(file)));
    }
    const std::string formatted = lm_edit::Format(document);
    const bool isInStyle = formatted == document.Bytes();
    if (settings.checks) {
        if (!isInStyle) {
            std::cout << file << '\n';
        }
        return isInStyle;
    }
    if (file == kStandardInput) {
        std::cout << formatted;
    } else if (!isInStyle) {
        const fs::path path = lm_tree::PathOf(file);
        lm_edit::WriteInTree(TreeOf(path), path, formatted);
    }
    return true;
}

bool Format(const FormatSettings& settings) {
    bool all = true;
    for (const std::string& file : settings.files) {
        try {
            all = FormatFile(settings, file) && all;
        } catch (const std::runtime_error& error) {
            std::cerr << "localize: " << error.what() << '\n';
            all = false;
        }
    }
    return all;
}

}  // namespace

void AddFormatCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<FormatSettings>();
    CLI::App& format = AddCommand(
        app, chosen,
        {"format", "Bring files into the one style; what they say stays the same",
         "0 all in the style, 1 a file is not (with --check) or cannot be, 2 wrong usage",
         "localize format --check texts/*/Locs/*.lt"},
        [settings] { return Format(*settings); });
    format.add_flag("--check", settings->checks, "Write nothing; print the files not in the style");
    format
        .add_option("FILE", settings->files, "Localisation files; - for standard input to output")
        ->type_name("")
        ->required();
}

}  // namespace localize
