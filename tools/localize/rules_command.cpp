// `rules` tells which numbers choose which form.
#include <iostream>
#include <memory>
#include <optional>

#include "commands.h"
#include "plural/cldr.h"
#include "plural/culture_rule.h"
#include "plural/number_ranges.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct RulesSettings {
    std::string root;
    std::vector<std::string> cultures;
};

void PrintForms(const lm_plural::PluralRule& rule) {
    for (std::size_t form = 0; form < rule.FormCount(); ++form) {
        std::cout << "  form " << form + 1 << ": " << lm_plural::RangesText(NumbersOf(rule, form))
                  << '\n';
    }
    if (const auto gap = rule.Gap()) {
        std::cout << "  no form: " << *gap << '\n';
    }
}

void PrintDifferences(const lm_plural::PluralRule& rule, const std::string& culture) {
    const auto differences = CompareWithCldr(rule, culture, lm_plural::TellingNumbers());
    if (!differences) {
        std::cout << "  CLDR: does not know the language\n";
        return;
    }
    if (differences->empty()) {
        std::cout << "  CLDR: the same for whole numbers\n";
    }
    for (const lm_plural::CldrDifference& difference : *differences) {
        std::cout << "  CLDR differs: " << lm_plural::RangesText(difference.numbers) << " ("
                  << difference.category << " there, "
                  << (difference.form ? "form " + std::to_string(*difference.form + 1) : "no form")
                  << " here)\n";
    }
}

bool PrintRules(const RulesSettings& settings) {
    std::optional<lm_tree::Tree> tree;
    if (!settings.root.empty()) {
        tree.emplace(lm_tree::PathOf(settings.root), std::filesystem::path());
    }
    for (const std::string& name : settings.cultures) {
        const lm_tree::CultureName culture = lm_tree::RequestedCulture(name);
        const auto [rule, file] = lm_plural::RuleOf(tree ? &*tree : nullptr, culture);
        std::cout << culture.name << ": " << rule.FormCount()
                  << (rule.FormCount() == 1 ? " form, " : " forms, ")
                  << (file ? "from " + lm_tree::Utf8Of(tree->FullPath(*file)) : "built in") << '\n';
        PrintForms(rule);
        PrintDifferences(rule, culture.name);
    }
    return true;
}

}  // namespace

void AddRulesCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RulesSettings>();
    CLI::App& rules =
        AddCommand(app, chosen,
                   {"rules", "Tell which numbers choose which plural form, and where CLDR differs",
                    "0 told, 2 could not run", "localize rules --root texts --culture ru"},
                   ThatRuns([settings] { return PrintRules(*settings); }));
    AddRoot(rules, settings->root)
        .description("Directory of a localisation tree, whose rule files are looked for")
        ->required(false);
    AddList(rules, "--culture", settings->cultures, "Culture; may be repeated", "ISO").required();
}

}  // namespace localize
