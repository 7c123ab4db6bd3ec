#include "scope_catalog.h"

#include <algorithm>

#include "languages.h"
#include "plural_forms.h"
#include "source/Encoding.h"

namespace localize_po {

using lm_exchange::ScopeTexts;
using lm_exchange::Unit;

namespace {

std::string HeaderOf(const ScopeTexts& texts, const std::string& scope,
                     const std::optional<lm_tree::CultureName>& culture) {
    return "Project-Id-Version: " + scope +
           "\nLanguage: " + (culture ? LanguageOf(*culture) : std::string()) +
           "\nMIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\n"
           "Content-Transfer-Encoding: 8bit\nPlural-Forms: " +
           (texts.Rule() ? PluralFormsOf(*texts.Rule()) : "nplurals=INTEGER; plural=EXPRESSION;") +
           "\n";
}

/// What the library's strings cannot hold, or no file in UTF-8.
bool CanTravel(const CatalogEntry& entry) {
    const auto can = [](const std::string& text) {
        return text.find('\0') == std::string::npos &&
               lm_source::EncodingOf(text).illFormed.empty();
    };
    return can(*entry.context) && can(entry.id) && (!entry.pluralId || can(*entry.pluralId)) &&
           std::all_of(entry.translations.begin(), entry.translations.end(), can) &&
           std::all_of(entry.comments.begin(), entry.comments.end(), can);
}

}  // namespace

std::string ContextOf(const std::string& scope, const ScopeTexts::Text& text, const Unit& unit) {
    return scope + '|' + text.key + (unit.number.empty() ? "" : '|' + unit.number);
}

CatalogEntry EntryOf(const ScopeTexts& texts, const std::string& scope,
                     const ScopeTexts::Text& text, const Unit& unit) {
    CatalogEntry entry;
    entry.context = ContextOf(scope, text, unit);
    entry.id = unit.reference.front();
    entry.translations = unit.own;
    if (unit.isPlural) {
        entry.pluralId = unit.reference.back();
    }
    entry.translations.resize(unit.isPlural ? texts.FormCount() : 1);
    entry.comments = text.comments;
    if (!unit.number.empty()) {
        entry.comments.push_back("stands for {" + unit.number + "} in '" + text.key + '\'');
    }
    if (text.exchange.HasOtherFormCount()) {
        entry.isFuzzy = true;
        entry.comments.emplace_back("localize: fuzzy because: there are not " +
                                    std::to_string(texts.FormCount()) + " forms in the file");
    }
    entry.file = texts.ReferencePath();
    return entry;
}

Catalog CatalogOf(const ScopeTexts& texts, const std::string& scope,
                  const std::optional<lm_tree::CultureName>& culture,
                  const std::function<void(const std::string&)>& warn) {
    if (texts.Rule() && texts.Rule()->Gap()) {
        warn("the rule of " + culture->name + " leaves out " +
             std::to_string(*texts.Rule()->Gap()) +
             ": translators are told that its last form serves what is left out");
    }
    for (const std::string& key : texts.Surplus()) {
        warn("'" + key + "' is not in the reference and is left out");
    }
    Catalog catalog(HeaderOf(texts, scope, culture));
    for (const ScopeTexts::Text& text : texts.Texts()) {
        for (const Unit& unit : text.exchange.Units()) {
            const CatalogEntry entry = EntryOf(texts, scope, text, unit);
            if (CanTravel(entry)) {
                catalog.Add(entry);
            } else {
                warn("'" + text.key + "' is left out: it holds a zero, or what is not UTF-8");
            }
        }
    }
    return catalog;
}

}  // namespace localize_po
