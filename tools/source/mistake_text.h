// The engine's texts of mistakes.
#pragma once

#include <string>
#include <string_view>

#include "source/Document.h"

namespace lm_source {

/// What the engine would report, were this the first mistake of the file: place, line and caret
/// included (a duplicate has none). UTF-8.
/// @param mistake     one of the document's.
/// @param sourceName  the name of the file in the text. UTF-8.
std::string TextOf(const Document& document, const Mistake& mistake, std::string_view sourceName);

}  // namespace lm_source
