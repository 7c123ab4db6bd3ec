#include "BuiltInPluralFormRules.h"

#include <boost/lambda/lambda.hpp>
#include <initializer_list>

namespace LocalizationManager::StringLocalizing::Model {

namespace {

using localization_manager::Language;

void Add(PluralFormRules& rules, std::initializer_list<Language> languages,
         const PluralFormRule& entries, const char* region = "") {
    for (const Language language : languages) {
        rules.AddRule(language, region) = entries;
    }
}

}  // namespace

void AddBuiltInPluralFormRules(PluralFormRules& rules) {
    const auto& n = boost::lambda::_1;

    Add(rules,
        {Language::ChineseTraditional, Language::ChineseSimplified, Language::Persian,
         Language::Indonesian, Language::Japanese, Language::Kazakh, Language::Korean,
         Language::Vietnamese},
        {});
    Add(rules,
        {Language::Albanian, Language::Bulgarian, Language::Danish, Language::Dutch,
         Language::English, Language::Estonian, Language::Finnish, Language::German,
         Language::Greek, Language::Hungarian, Language::Italian, Language::NorwegianBokmal,
         Language::Portuguese, Language::Spanish, Language::Swedish},
        {n == 1});
    Add(rules, {Language::French, Language::Turkish}, {n < 2});
    Add(rules, {Language::Portuguese}, {n < 2}, "br");
    Add(rules, {Language::Arabic},
        {n == 0, n == 1, n == 2, n % 100 >= 3 && n % 100 <= 10, n % 100 >= 11 && n % 100 <= 99});
    Add(rules, {Language::Czech}, {n == 1, n >= 2 && n <= 4});
    Add(rules, {Language::Irish},
        {n == 1, n == 2, n % 10 >= 3 && n % 10 <= 6, n % 10 >= 7 && n % 10 <= 9});
    Add(rules, {Language::Lithuanian},
        {n % 10 == 1 && n % 100 != 11, n % 10 >= 2 && (n % 100 < 10 || n % 100 >= 20)});
    Add(rules, {Language::Latvian}, {n % 10 == 1 && n % 100 != 11, n == 0});
    Add(rules, {Language::Macedonian}, {n % 10 == 1, n % 10 == 2});
    Add(rules, {Language::Polish},
        {n == 1, n % 10 >= 2 && n % 10 <= 4 && (n % 100 < 10 || n % 100 > 20)});
    Add(rules, {Language::Russian, Language::Ukrainian},
        {n % 10 == 1 && n % 100 != 11,
         n % 10 >= 2 && n % 10 <= 4 && (n % 100 < 10 || n % 100 > 20)});
    Add(rules, {Language::Romanian}, {n == 1, n == 0 || (n % 100 > 0 && n % 100 < 20)});
    Add(rules, {Language::SerbianCyrillic, Language::SerbianLatin},
        {n % 10 == 1 && n % 100 != 11,
         n % 10 >= 2 && n % 10 <= 4 && (n % 100 < 10 || n % 100 >= 20)});
    Add(rules, {Language::Slovenian}, {n == 1, n % 100 == 2, n % 100 == 3 || n % 100 == 4});
}

}  // namespace LocalizationManager::StringLocalizing::Model
