// The plural rules of all languages.
#include "PluralFormRules.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using namespace LocalizationManager::StringLocalizing::Model;
using L = localization_manager::Language;

constexpr int kNumbers[] = {-1, 0,  1,  2,  3,  4,  5,   7,   9,   10,  11,  12,  14,
                            19, 20, 21, 22, 23, 99, 100, 101, 102, 104, 111, 112, 120};

std::size_t FormOf(const PluralFormRule& rule, int number) {
    std::size_t form = 0;
    while (form < rule.size() && !rule[form](number)) {
        ++form;
    }
    return form;
}

TEST(PluralFormRulesTest, EveryLanguageSelectsItsForms) {
    // A line has the forms of all numbers, a digit for each, and the ids whose rules select them.
    std::map<std::string, std::string> formsOf;
    std::ifstream table(CASES "plural_forms.txt");
    for (std::string word, forms; table >> word;) {
        forms = word[0] <= '9' ? word : forms;
        formsOf[word] = forms;
    }
    const auto rules = CreatePluralFormRules();
    for (int language = 0; language <= 38; ++language) {
        const PluralFormRuleId id = language < 38 ? PluralFormRuleId(static_cast<L>(language), "")
                                                  : PluralFormRuleId(L::Portuguese, "br");
        std::string forms;
        for (const int number : kNumbers) {
            forms += std::to_string(FormOf(rules->GetRule(id), number));
        }
        EXPECT_EQ(forms, formsOf[ToText(id)]) << ToText(id);
        const char highest = *std::max_element(forms.begin(), forms.end());
        EXPECT_EQ(rules->GetEntryCount(id), highest - '0' + 1) << ToText(id);
    }
    EXPECT_THROW(rules->GetEntryCount({static_cast<L>(40), "br"}), std::range_error);
}

}  // namespace
