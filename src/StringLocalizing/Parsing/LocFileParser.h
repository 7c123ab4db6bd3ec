// The parser of localisation files.
#pragma once

#include "ResourceDictionary.h"
#include "SourceIterator.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Adds the entries of a source to a dictionary.
/// @param first, last the ends of one `SourceRange`.
/// @throws ParsingException when the text is faulty or defines a key that the dictionary already
///         has; the dictionary then keeps the entries before the fault.
void ParseResourceDictionary(const SourceIterator& first, const SourceIterator& last,
                             Model::ResourceDictionary& dictionary);

}  // namespace LocalizationManager::StringLocalizing::Parsing
