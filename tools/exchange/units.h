// How the units of texts are called.
#pragma once

#include <string>

#include "exchange/ScopeTexts.h"

namespace lm_exchange {

/// The scope, "|" and the key; of a plural form among others also its number.
std::string UnitId(const ScopeTexts& texts, const ScopeTexts::Text& text, const Unit& unit);

/// What translators are told: the comments, and what a part of a text is for.
std::vector<std::string> NotesOf(const ScopeTexts::Text& text, const Unit& unit);

/// Whether it goes out as still to be translated.
bool IsOpen(const ScopeTexts::Text& text, const Unit& unit);

/// A translation for each form, or one; empty texts where there is none.
std::vector<std::string> TargetsOf(const ScopeTexts& texts, const Unit& unit);

}  // namespace lm_exchange
