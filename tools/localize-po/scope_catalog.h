// The texts of a scope as a catalog.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Catalog.h"
#include "CatalogEntry.h"
#include "exchange/ScopeTexts.h"
#include "tree/CultureName.h"

namespace localize_po {

/// How a unit is called: the scope, "|" and the key; of a plural form among others also its number.
std::string ContextOf(const std::string& scope, const lm_exchange::ScopeTexts::Text& text,
                      const lm_exchange::Unit& unit);

/// A unit as a message.
CatalogEntry EntryOf(const lm_exchange::ScopeTexts& texts, const std::string& scope,
                     const lm_exchange::ScopeTexts::Text& text, const lm_exchange::Unit& unit);

/// @param culture  empty for a template.
/// @param warn     gets what is worth knowing.
Catalog CatalogOf(const lm_exchange::ScopeTexts& texts, const std::string& scope,
                  const std::optional<lm_tree::CultureName>& culture,
                  const std::function<void(const std::string&)>& warn);

}  // namespace localize_po
