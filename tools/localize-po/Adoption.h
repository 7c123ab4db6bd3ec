// The texts of a gettext project as localisation files.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Catalog.h"
#include "KeyMaker.h"
#include "ParameterNames.h"
#include "exchange/Phrase.h"
#include "plural/PluralRule.h"
#include "plural/plural_forms.h"

namespace localize_po {

/// Knows the messages of all catalogs of a project, so that each has the same key in all cultures.
class Adoption {
public:
    explicit Adoption(ParameterNames names) : names_(std::move(names)) {}

    /// Adds the messages that no catalog before had, in the catalog's order; not the obsolete ones.
    void Add(const Catalog& catalog);

    std::size_t Count() const noexcept { return messages_.size(); }

    /// What becomes of a catalog.
    struct File {
        std::string bytes;
        std::size_t translated = 0;
    };

    /// The texts that the program shows without translations.
    /// @param rule  of the culture that they are in.
    File Reference(const lm_plural::PluralRule& rule) const;

    /// The texts that gettext answers. What is not translated, or fuzzy, is the reference's text under
    /// the comment that says so.
    /// @param forms  the catalog's form for each form of the culture's rule.
    /// @param one    the culture's form for 1.
    /// @throws std::runtime_error for an entry with too few forms.
    File Translation(const Catalog& catalog, const std::vector<std::size_t>& forms,
                     std::size_t one) const;

private:
    struct Message {
        CatalogEntry entry;
        std::string key;
    };
    using Identity = std::pair<std::string, std::string>;

    static Identity IdentityOf(const CatalogEntry& entry);
    std::string LineOf(const Message& message, const std::vector<std::string>& texts) const;
    std::vector<std::string> OwnTexts(const Message& message, std::size_t count,
                                      std::size_t one) const;
    lm_exchange::Phrase PhraseOf(const Message& message, const std::string& text) const;

    ParameterNames names_;
    KeyMaker keys_;
    std::vector<Message> messages_;
    std::map<Identity, std::size_t> known_;
};

/// Which form of a catalog each form of a rule is.
/// @return empty when one form of the rule would have to be several.
std::vector<std::size_t> FormsFor(const lm_plural::PluralRule& rule,
                                  const lm_plural::PluralForms& forms);

}  // namespace localize_po
