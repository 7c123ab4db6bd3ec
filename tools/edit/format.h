// The one style of localisation files.
#pragma once

#include <string>

#include "source/Document.h"

namespace lm_edit {

/// A file in the one style: an entry begins its line, the "=" of entries that follow each other stand
/// below each other, and what does not fit into a line is broken before a "+" or between forms.
/// Comments, blank lines, strings, the kind of line breaks and a byte-order mark stay as they are, and
/// so does what the file says. To format twice changes nothing the second time.
/// @param document  without mistakes.
/// @throws std::invalid_argument for one with mistakes, or not in UTF-8.
std::string Format(const lm_source::Document& document);

}  // namespace lm_edit
