// Entries at the end of a file.
#pragma once

#include <string_view>

#include "source/Document.h"
#include "source/edits.h"

namespace lm_edit {

/// What a file ends its lines with, as far as its first line break says.
std::string_view LineBreakOf(const lm_source::Document& document);

/// The edit that adds entries behind an empty line. Zeros at the end of the file, which the engine
/// does not read, make room for them.
/// @param entries  whole lines.
lm_source::Edit Appended(const lm_source::Document& document, std::string_view entries);

}  // namespace lm_edit
