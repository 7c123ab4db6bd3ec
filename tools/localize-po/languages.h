// What cultures are called in PO files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tree/CultureName.h"

namespace localize_po {

/// "pt_BR", "zh_Hans", "de_AT@variant".
std::string LanguageOf(const lm_tree::CultureName& culture);

/// The culture that a catalog is for. Where others know a script by its region ("zh_TW"), or by what
/// stands behind an "@" ("sr@latin"), it is that of the script.
/// @return empty when the engine does not know the language.
std::optional<lm_tree::CultureName> CultureOfLanguage(std::string_view language);

}  // namespace localize_po
