#include "import_catalog.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "languages.h"
#include "plural_forms.h"
#include "scope_catalog.h"
#include "tree/ascii_case.h"

namespace localize_po {

using lm_exchange::ScopeTexts;
using lm_exchange::Unit;

namespace {

/// Editors write the names of languages in one way or the other.
std::string Comparable(std::string language) {
    std::replace(language.begin(), language.end(), '-', '_');
    return lm_tree::LowerAscii(language);
}

/// Whether there is nothing where there was something, or where nothing was ever meant to be.
bool LacksForm(const std::vector<std::string>& texts, const std::vector<std::string>& before) {
    for (std::size_t form = 0; form < texts.size(); ++form) {
        if (texts[form].empty() && (form >= before.size() || !before[form].empty())) {
            return true;
        }
    }
    return false;
}

class Importer {
public:
    Importer(const Catalog& catalog, const ScopeTexts& texts, const std::string& scope,
             const lm_tree::CultureName& culture)
        : catalog_(catalog),
          texts_(texts),
          scope_(scope),
          culture_(culture),
          entries_(catalog.Entries()),
          import_{lm_exchange::TextChanges(texts), {}, {}} {}

    Import Run() {
        RequireCulture();
        RequireScope();
        RequireRule();
        RequireWhole();
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            Take(text);
        }
        import_.counts.outdated += byContext_.size();  // that nobody asked for
        return std::move(import_);
    }

private:
    using Translations = std::vector<std::vector<std::string>>;

    void RequireCulture() const {
        const std::string language = catalog_.HeaderField("Language");
        if (Comparable(language) != Comparable(LanguageOf(culture_))) {
            throw std::runtime_error("its language is '" + language + "', not '" +
                                     LanguageOf(culture_) + "'");
        }
    }

    void RequireScope() {
        const std::string start = scope_ + '|';
        for (const CatalogEntry& entry : entries_) {
            if (entry.isObsolete) {
                ++import_.counts.obsolete;
                continue;
            }
            const std::string context = entry.context.value_or("");
            if (context.compare(0, start.size(), start) != 0) {
                throw std::runtime_error("'" + (entry.context ? context : entry.id) +
                                         "' is no text of the scope '" + scope_ + "'");
            }
            byContext_.emplace(context, &entry);
        }
    }

    void RequireRule() const {
        const bool hasPlurals =
            std::any_of(entries_.begin(), entries_.end(),
                        [](const auto& entry) { return entry.pluralId && !entry.isObsolete; });
        if (!hasPlurals) {
            return;
        }
        const std::string field = catalog_.HeaderField("Plural-Forms");
        const std::string wanted = PluralFormsOf(*texts_.Rule());
        std::optional<PluralForms> forms;
        try {
            forms.emplace(field);
        } catch (const std::invalid_argument&) {
            forms.reset();  // what it says is shown all the same
        }
        if (field != wanted && (!forms || !Agree(*forms, *texts_.Rule()))) {
            throw std::runtime_error("its plural rule is '" + field + "', that of " +
                                     culture_.name + " is '" + wanted + "'");
        }
    }

    /// What was translated when the file was written is in it, unless its end is lost.
    void RequireWhole() const {
        if (!catalog_.EndsWithLine()) {
            throw std::runtime_error("it is not whole: its last line does not end");
        }
        for (const CatalogEntry& entry : entries_) {
            if (entry.pluralId && !entry.isObsolete &&
                entry.translations.size() != texts_.FormCount()) {
                throw std::runtime_error("'" + *entry.context + "' has " +
                                         std::to_string(entry.translations.size()) +
                                         " forms instead of " + std::to_string(texts_.FormCount()));
            }
        }
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            const std::string context = scope_ + '|' + text.key;
            if (text.exchange.HasOwn() && byContext_.count(context) == 0 && !WasObsolete(context)) {
                throw std::runtime_error("'" + context +
                                         "', which is translated, is not in it: the file is not "
                                         "whole, or older: 'msgmerge' it with a new export");
            }
        }
    }

    bool WasObsolete(const std::string& context) const {
        return std::any_of(entries_.begin(), entries_.end(), [&](const CatalogEntry& entry) {
            return entry.isObsolete && entry.context == context;
        });
    }

    /// The translations that a message brings; empty when it is skipped, which is counted.
    const std::vector<std::string>* Brought(const ScopeTexts::Text& text, const Unit& unit) {
        const auto found = byContext_.find(ContextOf(scope_, text, unit));
        if (found == byContext_.end()) {
            return nullptr;
        }
        const CatalogEntry& entry = *found->second;
        byContext_.erase(found);
        const CatalogEntry today = EntryOf(texts_, scope_, text, unit);
        if (entry.id != today.id || entry.pluralId != today.pluralId) {
            ++import_.counts.outdated;
        } else if (entry.isFuzzy) {
            ++import_.counts.fuzzy;
        } else if (entry.translations == today.translations && !unit.own.empty()) {
            ++import_.counts.unchanged;
        } else if (LacksForm(entry.translations, unit.own)) {
            ++import_.counts.empty;
        } else {
            return &entry.translations;
        }
        return nullptr;
    }

    void Take(const ScopeTexts::Text& text) {
        Translations translations;
        std::size_t brought = 0;
        for (const Unit& unit : text.exchange.Units()) {
            const auto* const translation = Brought(text, unit);
            brought += translation != nullptr ? 1 : 0;
            translations.push_back(translation != nullptr ? *translation : unit.own);
        }
        if (brought == 0) {
            return;
        }
        const bool isComplete = std::none_of(translations.begin(), translations.end(),
                                             [](const auto& texts) { return texts.empty(); });
        if (!text.exchange.HasOwn() && !isComplete) {
            import_.counts.empty += brought;
            return;
        }
        try {
            import_.changes.Set(text, text.exchange.ValueWith(translations));
        } catch (const lm_exchange::Inexpressible& error) {
            import_.errors.push_back(scope_ + '|' + text.key + ": " + error.what());
        }
    }

    const Catalog& catalog_;
    const ScopeTexts& texts_;
    const std::string& scope_;
    const lm_tree::CultureName& culture_;
    const std::vector<CatalogEntry> entries_;
    std::map<std::string, const CatalogEntry*> byContext_;
    Import import_;
};

}  // namespace

Import ImportCatalog(const Catalog& catalog, const ScopeTexts& texts, const std::string& scope,
                     const lm_tree::CultureName& culture) {
    return Importer(catalog, texts, scope, culture).Run();
}

}  // namespace localize_po
