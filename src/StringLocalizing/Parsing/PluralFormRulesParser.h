// The parser of plural rule files.
#pragma once

#include "PluralFormRule.h"
#include "SourceIterator.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Appends the entries of a plural rule file to a rule.
/// @param first, last the ends of one `SourceRange`.
/// @throws ParsingException when the text is faulty.
void ParsePluralFormRules(const SourceIterator& first, const SourceIterator& last,
                          Model::PluralFormRule& rule);

}  // namespace LocalizationManager::StringLocalizing::Parsing
