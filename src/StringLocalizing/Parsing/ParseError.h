// The error texts of both parsers.
#pragma once

#include <cstddef>
#include <string>

#include "SourceIterator.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Three lines: where, the line of the source in quotes, and a caret below the column. What follows
/// continues the third.
/// @param room  for so many bytes more. The line may be as long as its file: nothing is made twice.
std::string FormatParsePosition(const SourceIterator& position, std::size_t room);

/// To be called in a handler: throws the exception in flight as what the caller of the parser gets.
/// Faults of the text become a `ParsingException`, all others pass unchanged.
/// @param first where the parse started; the position of the fault is counted from here.
[[noreturn]] void TranslateParseError(const SourceIterator& first);

}  // namespace LocalizationManager::StringLocalizing::Parsing
