#include "BuiltInPluralFormRules.h"

#include <boost/lambda/lambda.hpp>
#include <initializer_list>

#include "Remainder.h"

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
    const auto mod10 = Remainder(10);
    const auto mod100 = Remainder(100);

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
        {n == 0, n == 1, n == 2, mod100 >= 3 && mod100 <= 10, mod100 >= 11 && mod100 <= 99});
    Add(rules, {Language::Czech}, {n == 1, n >= 2 && n <= 4});
    Add(rules, {Language::Irish},
        {n == 1, n == 2, mod10 >= 3 && mod10 <= 6, mod10 >= 7 && mod10 <= 9});
    Add(rules, {Language::Lithuanian},
        {mod10 == 1 && mod100 != 11, mod10 >= 2 && (mod100 < 10 || mod100 >= 20)});
    Add(rules, {Language::Latvian}, {mod10 == 1 && mod100 != 11, n == 0});
    Add(rules, {Language::Macedonian}, {mod10 == 1, mod10 == 2});
    Add(rules, {Language::Polish},
        {n == 1, mod10 >= 2 && mod10 <= 4 && (mod100 < 10 || mod100 > 20)});
    Add(rules, {Language::Russian, Language::Ukrainian},
        {mod10 == 1 && mod100 != 11, mod10 >= 2 && mod10 <= 4 && (mod100 < 10 || mod100 > 20)});
    Add(rules, {Language::Romanian}, {n == 1, n == 0 || (mod100 > 0 && mod100 < 20)});
    Add(rules, {Language::SerbianCyrillic, Language::SerbianLatin},
        {mod10 == 1 && mod100 != 11, mod10 >= 2 && mod10 <= 4 && (mod100 < 10 || mod100 >= 20)});
    Add(rules, {Language::Slovenian}, {n == 1, mod100 == 2, mod100 == 3 || mod100 == 4});
}

}  // namespace LocalizationManager::StringLocalizing::Model
