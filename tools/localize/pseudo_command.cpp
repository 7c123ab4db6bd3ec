// `pseudo` makes texts that look translated.
#include <iostream>
#include <memory>
#include <stdexcept>

#include "TreeLayout.h"
#include "commands.h"
#include "edit/pseudo.h"
#include "edit/read_document.h"
#include "edit/write_whole.h"
#include "plural/culture_rule.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace layout = LocalizationManager::File;
namespace fs = std::filesystem;

namespace {

struct PseudoSettings {
    std::string root;
    std::string from;
    std::string to;
};

class Pseudo {
public:
    explicit Pseudo(const PseudoSettings& settings)
        : tree_(lm_tree::PathOf(settings.root), {}),
          source_(lm_tree::RequestedCulture(settings.from)),
          to_(lm_tree::PathOf(settings.to)) {
        RequireTexts();
    }

    void Write(const char* region, lm_edit::PseudoStyle style) const {
        const auto language = source_.culture->language;
        const auto target = lm_tree::CultureOf(language, region);
        const fs::path texts =
            to_ / lm_tree::PathOf(target.directories.front()) / layout::kTextsDirectory;
        for (const std::string& scope : Scopes()) {
            if (const auto file = tree_.Answer(source_, scope)) {
                fs::path path = texts / lm_tree::PathOf(scope);
                path += layout::kTextsExtension;
                const auto document = lm_edit::ReadDocument(tree_, *file);
                lm_edit::WriteInTree(to_, path, Pseudolocalized(document, style));
            }
        }
        fs::path rulePath = to_;
        const auto directories =
            layout::PluralRuleDirectories(lm_plural::PluralRule::Id(*target.culture));
        for (const std::u16string& directory : directories.front()) {
            rulePath /= directory;
        }
        rulePath /= layout::kPluralRuleFile;
        if (const auto rule = lm_plural::RuleOf(&tree_, source_).file) {
            lm_edit::WriteInTree(to_, rulePath, tree_.Read(*rule));
        } else {
            fs::remove(rulePath);  // of another source, from before
        }
        std::cout << lm_tree::Utf8Of(to_ / target.directories.front()) << '\n';
    }

private:
    std::vector<std::string> Scopes() const {
        std::vector<std::string> scopes = tree_.ScopesOf(source_);
        scopes.insert(scopes.begin(), lm_tree::CommonScope());
        return scopes;
    }

    /// Neutral texts are in the culture's language where the tree names no cultures.
    void RequireTexts() const {
        const std::string neutral = lm_tree::Utf8Of(layout::kNeutralDirectory);
        for (const std::string& scope : Scopes()) {
            const auto file = tree_.Answer(source_, scope);
            if (file && (tree_.Cultures().empty() || tree_.Files()[*file].directory != neutral)) {
                return;
            }
        }
        throw std::invalid_argument("the tree has no texts of '" + source_.name +
                                    "' but the neutral ones");
    }

    lm_tree::Tree tree_;
    lm_tree::CultureName source_;
    fs::path to_;
};

bool MakePseudo(const PseudoSettings& settings) {
    const Pseudo pseudo(settings);
    pseudo.Write("xa", lm_edit::PseudoStyle::Accented);
    pseudo.Write("xb", lm_edit::PseudoStyle::RightToLeft);
    return true;
}

}  // namespace

void AddPseudoCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<PseudoSettings>();
    CLI::App& pseudo = AddCommand(
        app, chosen,
        {"pseudo",
         "Make texts that look translated: accented, longer, in brackets as region xa, and from "
         "right to left as region xb",
         "0 made, 2 could not run", "localize pseudo --root texts --from en --to texts"},
        ThatRuns([settings] { return MakePseudo(*settings); }));
    AddRoot(pseudo, settings->root);
    pseudo.add_option("--from", settings->from, "Culture whose texts to take")
        ->type_name("ISO")
        ->required();
    pseudo.add_option("--to", settings->to, "Tree to put them into; the same one, or another")
        ->type_name("DIR")
        ->required();
}

}  // namespace localize
