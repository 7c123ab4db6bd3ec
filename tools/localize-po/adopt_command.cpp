// `adopt` makes a localisation tree of the catalogs of a gettext project.
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

#include "Adoption.h"
#include "FromUtf8.h"
#include "TreeLayout.h"
#include "UsageError.h"
#include "commands.h"
#include "edit/FileChange.h"
#include "edit/write_whole.h"
#include "languages.h"
#include "plural/culture_rule.h"
#include "plural/parse_rule.h"
#include "plural/rule_file.h"
#include "read_text.h"
#include "tree/Tree.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize_po {

namespace fs = std::filesystem;

namespace {

struct AdoptSettings {
    std::string root;
    std::string scope;
    std::string reference = "en";
    std::string parameters;  // empty for none
    std::vector<std::string> files;
};

struct Source {
    std::string path;
    Catalog catalog;
    std::optional<lm_tree::CultureName> culture;  // empty for a template
};

/// gettext's own where a header has none.
constexpr const char* kUsualForms = "nplurals=2; plural=n != 1;";

class AdoptRun {
public:
    explicit AdoptRun(const AdoptSettings& settings)
        : settings_(settings),
          root_(lm_tree::PathOf(settings.root)),
          reference_(lm_tree::RequestedCulture(settings.reference)),
          adoption_(settings.parameters.empty()
                        ? ParameterNames()
                        : ParameterNames(localize::ReadText(settings.parameters))) {}

    /// Nothing is written unless all catalogs are good.
    bool Run() {
        if (settings_.scope.find_first_of("/\\") != std::string::npos) {
            throw localize::UsageError("'" + settings_.scope + "' is no name of a scope");
        }
        ReadSources();
        std::error_code error;
        if (fs::exists(root_, error)) {
            tree_.emplace(root_, fs::path());
        }
        // A region without a rule of its own has the language's, which has to be known before.
        for (const bool hasRegion : {false, true}) {
            for (const Source& source : sources_) {
                if (source.culture && HasRegion(*source.culture) == hasRegion) {
                    AddTranslation(source);
                }
            }
        }
        if (!hasReference_) {
            Add(TextsPath(reference_), adoption_.Reference(RuleOf(reference_)).bytes,
                adoption_.Count());
        }
        AddCommonTexts();
        for (const lm_edit::FileChange& change : changes_) {
            lm_edit::WriteInTree(root_, change.path, change.bytes);
            std::cout << lm_tree::Utf8Of(change.path);
            if (change.count != 0) {
                std::cout << ": " << change.count << " of " << adoption_.Count() << " texts";
            }
            std::cout << '\n';
        }
        return isComplete_;
    }

private:
    static lm_plural::PluralForms FormsOf(const std::string& field) {
        try {
            return lm_plural::PluralForms(field.empty() ? kUsualForms : field);
        } catch (const std::invalid_argument& error) {
            throw std::runtime_error("its Plural-Forms '" + field + "' are " + error.what());
        }
    }

    static bool HasRegion(const lm_tree::CultureName& culture) {
        return !culture.culture->region.empty();
    }

    void ReadSources() {
        for (const std::string& path : settings_.files) {
            Source source{path, Catalog::Read(path, localize::ReadBytes(path)), std::nullopt};
            const fs::path file = lm_tree::PathOf(path);
            if (file.extension() != ".pot") {
                // Headers often name the language alone where the file's name says more.
                const std::string language = source.catalog.HeaderField("Language");
                source.culture = CultureOfLanguage(lm_tree::Utf8Of(file.stem()));
                if (!source.culture) {
                    source.culture = CultureOfLanguage(language);
                }
                if (!source.culture) {
                    std::cerr << "localize-po: '" << path << "' is left out: the language '"
                              << language << "' is not known\n";
                    isComplete_ = false;
                    continue;
                }
            }
            adoption_.Add(source.catalog);
            sources_.push_back(std::move(source));
        }
    }

    fs::path TextsPath(const lm_tree::CultureName& culture) const {
        return root_ /
               lm_tree::PathOf(lm_tree::TextsPath(culture.directories.front(), settings_.scope));
    }

    void Add(const fs::path& path, std::string bytes, std::size_t count) {
        std::error_code error;
        const bool isTaken = std::any_of(changes_.begin(), changes_.end(),
                                         [&](const auto& change) { return change.path == path; });
        if (isTaken || fs::exists(path, error)) {
            throw std::runtime_error("'" + lm_tree::Utf8Of(path) +
                                     (isTaken ? "' would be made of two catalogs"
                                              : "' is there: adopt into another scope or tree"));
        }
        changes_.push_back({path, std::move(bytes), count, true});
    }

    void AddTranslation(const Source& source) {
        const lm_tree::CultureName& culture = *source.culture;
        try {
            const std::string field = source.catalog.HeaderField("Plural-Forms");
            const lm_plural::PluralForms forms = FormsOf(field);
            std::vector<std::size_t> map = FormsFor(RuleOf(culture), forms);
            if (map.empty()) {
                AddRule(culture, forms, field);
                map = FormsFor(RuleOf(culture), forms);
            }
            const Adoption::File file =
                adoption_.Translation(source.catalog, map, RuleOf(culture).FormOf(1).value_or(0));
            Add(TextsPath(culture), file.bytes, file.translated);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error("'" + source.path + "': " + error.what());
        }
        hasReference_ = hasReference_ || culture.name == reference_.name;
    }

    fs::path RulePath(const lm_tree::CultureName& culture, bool ofLanguage) const {
        namespace layout = LocalizationManager::File;
        LocalizationManager::StringLocalizing::Model::PluralFormRuleId id(*culture.culture);
        const auto directories = layout::PluralRuleDirectories(id);
        fs::path path = root_;
        for (const auto& directory : ofLanguage ? directories.back() : directories.front()) {
            path /= fs::path(directory);
        }
        return path / layout::kPluralRuleFile;
    }

    /// The one that the tree will have.
    lm_plural::PluralRule RuleOf(const lm_tree::CultureName& culture) const {
        for (const bool ofLanguage : {false, true}) {
            const auto found = rules_.find(RulePath(culture, ofLanguage));
            if (found != rules_.end()) {
                return found->second;
            }
        }
        return lm_plural::RuleOf(tree_ ? &*tree_ : nullptr, culture).rule;
    }

    void AddRule(const lm_tree::CultureName& culture, const lm_plural::PluralForms& forms,
                 const std::string& field) {
        const auto text = lm_plural::RuleFileOf(forms);
        if (!text) {
            throw std::runtime_error("neither the rule of " + culture.name +
                                     " nor a rule file can choose as its Plural-Forms do: '" +
                                     field + "'");
        }
        if (tree_ && tree_->HasDirectory(culture.directories.front())) {
            throw std::runtime_error("its Plural-Forms '" + field +
                                     "' are another rule than that " +
                                     "of the texts that the tree has in " + culture.name);
        }
        const fs::path path = RulePath(culture, false);
        rules_.emplace(path, lm_plural::PluralRule(
                                 lm_plural::ParseRule(LocalizationManager::Text::FromUtf8(*text))));
        Add(path, *text, 0);
    }

    /// Every culture has to have some.
    void AddCommonTexts() {
        const fs::path path =
            root_ / lm_tree::PathOf(lm_tree::TextsPath("neutral", lm_tree::CommonScope()));
        std::error_code error;
        if (!fs::exists(path, error)) {
            Add(path, "; texts that all scopes share\n", 0);
        }
    }

    const AdoptSettings& settings_;
    const fs::path root_;
    const lm_tree::CultureName reference_;
    Adoption adoption_;
    std::vector<Source> sources_;
    std::optional<lm_tree::Tree> tree_;  // as it was
    std::map<fs::path, lm_plural::PluralRule> rules_;
    std::vector<lm_edit::FileChange> changes_;
    bool hasReference_ = false;
    bool isComplete_ = true;
};

}  // namespace

void AddAdoptCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<AdoptSettings>();
    CLI::App& command = localize::AddCommand(
        app, chosen,
        {"adopt", "Make localisation files of the catalogs of a gettext project",
         "0 done, 1 a catalog's language is not known, 2 could not run and nothing was written",
         "localize-po adopt --root texts --scope main po/main.pot po/*.po"},
        localize::ThatRuns([settings] { return AdoptRun(*settings).Run(); }));
    localize::AddRoot(command, settings->root);
    command.add_option("--scope", settings->scope, "Scope that the texts become")
        ->type_name("NAME")
        ->required();
    command
        .add_option("--reference", settings->reference,
                    "Culture that the program's own texts are in; en unless named")
        ->type_name("ISO");
    command
        .add_option("--parameters", settings->parameters,
                    "Names of parameters: lines 'KEY OLD NEW', with * for all keys")
        ->type_name("FILE");
    command.add_option("PO", settings->files, "Catalogs, and the template first if there is one")
        ->type_name("")
        ->required();
}

}  // namespace localize_po
