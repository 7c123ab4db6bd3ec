// Texts that look translated, so that what is not shows.
#pragma once

#include <string>

#include "source/Document.h"

namespace lm_edit {

enum class PseudoStyle {
    Accented,     // letters with accents, brackets around each text, longer by a third
    RightToLeft,  // what a reader of the source reads from the right
};

/// A file with other strings. Parameters, references, forms and all that is no string stay.
/// @param document  without mistakes.
std::string Pseudolocalized(const lm_source::Document& document, PseudoStyle style);

}  // namespace lm_edit
