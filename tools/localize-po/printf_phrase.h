// Texts for printf, as phrases.
#pragma once

#include <string>
#include <string_view>

#include "exchange/Phrase.h"

namespace localize_po {

/// Directives become parameters: the first argument "p1", that of "%2$s" "p2", that of "%(name)s"
/// "name". How a number is written is for the program to say, which gives the text of a parameter.
/// "%%" is a percent sign, and so is a "%" that begins no directive.
lm_exchange::Phrase PhraseOfPrintf(std::string_view text);

}  // namespace localize_po
