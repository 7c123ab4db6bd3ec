// Changes of a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/Range.h"

namespace lm_source {

/// Bytes that take the place of others. An empty range inserts.
struct Edit {
    Range range;
    std::string replacement;
};

/// A file with all edits made. Their ranges are those of the file as it is, and their order does not
/// matter, but for insertions at one place, which keep it and come before a replacement that begins
/// there. What no edit covers stays byte for byte.
/// @throws std::invalid_argument when a range lies outside the file or two overlap.
std::string Apply(std::string_view bytes, std::vector<Edit> edits);

}  // namespace lm_source
