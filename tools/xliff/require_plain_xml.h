// What XML may do that no file of ours does.
#pragma once

#include <string_view>

namespace lm_xliff {

/// The library that reads XML takes on trust what this looks at: that the file is UTF-8, defines no
/// entities and uses none of its own, holds characters only, and is not nested beyond reason.
/// @throws std::runtime_error with the line.
void RequirePlainXml(std::string_view name, std::string_view bytes);

}  // namespace lm_xliff
