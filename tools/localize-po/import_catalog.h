// A catalog that comes back from translators.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Catalog.h"
#include "exchange/ScopeTexts.h"
#include "exchange/TextChanges.h"
#include "tree/CultureName.h"

namespace localize_po {

/// How many messages say what.
struct Counts {
    std::size_t unchanged = 0;
    std::size_t fuzzy = 0;
    std::size_t empty = 0;  // those with some empty forms, or with parts of a text, included
    std::size_t obsolete = 0;
    std::size_t outdated = 0;  // the reference has another text by now, or no such key
};

struct Import {
    lm_exchange::TextChanges changes;
    Counts counts;
    std::vector<std::string> errors;  // of single texts; the rest is imported
};

/// @param texts  has to outlive what is returned.
/// @throws std::runtime_error for a catalog of another culture, scope or plural rule, or one that
///         lacks what it must have: then nothing of it is good.
Import ImportCatalog(const Catalog& catalog, const lm_exchange::ScopeTexts& texts,
                     const std::string& scope, const lm_tree::CultureName& culture);

}  // namespace localize_po
