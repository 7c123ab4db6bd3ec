// `rules` tells which numbers choose which form.
#include <algorithm>
#include <iostream>
#include <memory>
#include <numeric>
#include <optional>

#include "commands.h"
#include "plural/cldr.h"
#include "plural/culture_rule.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

namespace {

struct RulesSettings {
    std::string root;
    std::vector<std::string> cultures;
};

/// All numbers up to here are looked at, and what is farther only a rule for exact millions tells apart.
constexpr std::uint64_t kLast = 1000;

std::vector<std::uint64_t> Numbers() {
    std::vector<std::uint64_t> numbers(kLast + 1);
    std::iota(numbers.begin(), numbers.end(), 0U);
    for (const std::uint64_t further : {1'000'000U, 2'000'000U, 3'000'000U}) {
        numbers.push_back(further);
    }
    return numbers;
}

/// "2 to 20, 22 to 30 and on"
std::string Ranges(const std::vector<std::uint64_t>& numbers) {
    constexpr std::size_t kMost = 6;
    std::string text;
    std::size_t count = 0;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
            ++last;
        }
        const bool isOpen = numbers[last] == kLast;
        if (isOpen || count == kMost) {
            return text +
                   (isOpen && count < kMost
                        ? (text.empty() ? "" : ", ") + std::to_string(numbers[i])
                        : "") +
                   " and on";
        }
        text += (text.empty() ? "" : ", ") + std::to_string(numbers[i]);
        if (last != i) {
            text += (last == i + 1 ? ", " : " to ") + std::to_string(numbers[last]);
        }
        ++count;
        i = last + 1;
    }
    return text.empty() ? "no number" : text;
}

void PrintForms(const lm_plural::PluralRule& rule, const std::vector<std::uint64_t>& numbers) {
    for (std::size_t form = 0; form < rule.FormCount(); ++form) {
        std::vector<std::uint64_t> chosen;
        std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(chosen),
                     [&](std::uint64_t number) { return rule.FormOf(number) == form; });
        std::cout << "  form " << form + 1 << ": " << Ranges(chosen) << '\n';
    }
    if (const auto gap = rule.Gap()) {
        std::cout << "  no form: " << *gap << '\n';
    }
}

void PrintDifferences(const lm_plural::PluralRule& rule, const std::string& culture,
                      const std::vector<std::uint64_t>& numbers) {
    const auto differences = CompareWithCldr(rule, culture, numbers);
    if (!differences) {
        std::cout << "  CLDR: does not know the language\n";
        return;
    }
    if (differences->empty()) {
        std::cout << "  CLDR: the same for whole numbers\n";
    }
    for (const lm_plural::CldrDifference& difference : *differences) {
        std::cout << "  CLDR differs: " << Ranges(difference.numbers) << " (" << difference.category
                  << " there, "
                  << (difference.form ? "form " + std::to_string(*difference.form + 1) : "no form")
                  << " here)\n";
    }
}

bool PrintRules(const RulesSettings& settings) {
    std::optional<lm_tree::Tree> tree;
    if (!settings.root.empty()) {
        tree.emplace(lm_tree::PathOf(settings.root), std::filesystem::path());
    }
    const std::vector<std::uint64_t> numbers = Numbers();
    for (const std::string& name : settings.cultures) {
        const lm_tree::CultureName culture = lm_tree::RequestedCulture(name);
        const auto [rule, file] = lm_plural::RuleOf(tree ? &*tree : nullptr, culture);
        std::cout << culture.name << ": " << rule.FormCount()
                  << (rule.FormCount() == 1 ? " form, " : " forms, ")
                  << (file ? "from " + lm_tree::Utf8Of(tree->FullPath(*file)) : "built in") << '\n';
        PrintForms(rule, numbers);
        PrintDifferences(rule, culture.name, numbers);
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
