#include "PoFormat.h"

#include <utility>

#include "Catalog.h"
#include "CatalogEntry.h"
#include "exchange/units.h"
#include "languages.h"
#include "plural/plural_forms.h"
#include "source/Encoding.h"

namespace localize_po {

using lm_exchange::ScopeTexts;
using lm_exchange::TranslatedFile;
using lm_exchange::TranslatedUnit;
using lm_exchange::Unit;

namespace {

std::string HeaderOf(const ScopeTexts& texts) {
    // Editors fill in what is empty; without it `msgfmt -c` would warn.
    return "Project-Id-Version: " + texts.Scope() +
           "\nPO-Revision-Date: \nLast-Translator: \nLanguage-Team: \nLanguage: " +
           (texts.Culture() ? LanguageOf(*texts.Culture()) : std::string()) +
           "\nMIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\n"
           "Content-Transfer-Encoding: 8bit\nPlural-Forms: " +
           (texts.Rule() ? PluralFormsOf(*texts.Rule()) : "nplurals=INTEGER; plural=EXPRESSION;") +
           "\n";
}

CatalogEntry EntryOf(const ScopeTexts& texts, const ScopeTexts::Text& text, const Unit& unit) {
    CatalogEntry entry;
    entry.context = UnitId(texts, text, unit);
    entry.id = unit.reference.front();
    if (unit.isPlural) {
        entry.pluralId = unit.reference.back();
    }
    entry.translations = TargetsOf(texts, unit);
    entry.comments = NotesOf(text, unit);
    if (text.exchange.HasOtherFormCount()) {
        entry.isFuzzy = true;
        entry.comments.emplace_back("localize: fuzzy because: there are not " +
                                    std::to_string(texts.FormCount()) + " forms in the file");
    }
    entry.file = texts.ReferencePath();
    return entry;
}

std::vector<std::string> Numbers(std::size_t count) {
    std::vector<std::string> numbers;
    for (std::size_t number = 0; number < count; ++number) {
        numbers.push_back(std::to_string(number));
    }
    return numbers;
}

TranslatedUnit UnitOf(CatalogEntry entry) {
    TranslatedUnit unit;
    unit.id = entry.context ? std::move(*entry.context) : entry.id;
    unit.sources = {std::move(entry.id)};
    if (entry.pluralId) {
        unit.sources.push_back(std::move(*entry.pluralId));
        unit.formNames = Numbers(entry.translations.size());
    }
    unit.targets = std::move(entry.translations);
    unit.state = entry.isObsolete ? TranslatedUnit::State::Obsolete
                 : entry.isFuzzy  ? TranslatedUnit::State::Unfinished
                                  : TranslatedUnit::State::Done;
    return unit;
}

}  // namespace

std::string PoFormat::Write(const ScopeTexts& texts) const {
    Catalog catalog(HeaderOf(texts));
    for (const ScopeTexts::Text& text : texts.Texts()) {
        if (!lm_exchange::CanHold(*this, text)) {
            continue;
        }
        for (const Unit& unit : text.exchange.Units()) {
            catalog.Add(EntryOf(texts, text, unit));
        }
    }
    return catalog.Bytes();
}

TranslatedFile PoFormat::Read(const std::string& path, const std::string& bytes) const {
    Catalog catalog = Catalog::Read(path, bytes);
    TranslatedFile file;
    file.language = catalog.HeaderField("Language");
    file.pluralForms = catalog.HeaderField("Plural-Forms");
    file.end = !catalog.EndsWithLine()   ? TranslatedFile::End::PartOfLine
               : catalog.EndsWithPiece() ? TranslatedFile::End::FurtherLine
                                         : TranslatedFile::End::Line;
    std::vector<CatalogEntry> entries = std::move(catalog).TakeEntries();
    file.units.reserve(entries.size());
    for (CatalogEntry& entry : entries) {
        file.units.push_back(UnitOf(std::move(entry)));
    }
    return file;
}

std::vector<std::string> PoFormat::SourcesOf(const Unit& unit, const ScopeTexts& /*texts*/) const {
    return unit.reference;
}

std::vector<std::string> PoFormat::FormNames(const ScopeTexts& texts) const {
    return Numbers(texts.FormCount());
}

bool PoFormat::CanHold(const std::string& text) const {
    return text.find('\0') == std::string::npos && lm_source::EncodingOf(text).illFormed.empty();
}

}  // namespace localize_po
