// Changes of a file for people.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/edits.h"

namespace lm_edit {

/// What `diff -u` would print, and `patch` takes; empty when nothing changes.
/// @param path  of the file before and after.
std::string UnifiedDiff(const std::string& path, std::string_view before,
                        const std::vector<lm_source::Edit>& edits);

}  // namespace lm_edit
