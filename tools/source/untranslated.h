// The mark of an entry that is still to be translated.
#pragma once

#include <cstddef>
#include <optional>

#include "source/Document.h"

namespace lm_source {

/// The comment that stands above such an entry.
inline constexpr const char* kUntranslatedComment = "; localize: untranslated";

/// Where an entry says that it is still to be translated.
/// @param entry  its number.
std::optional<Range> UntranslatedMark(const Document& document, std::size_t entry);

}  // namespace lm_source
