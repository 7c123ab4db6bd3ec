// What a path leads to.
#pragma once

#include <string_view>

#include "qor/result_codes.h"

namespace qor::filesystem {

/// Whether a path is a directory.
/// @return `rcOk` for a directory; `rcFalse` for a file, and for a link or junction, whatever it
///         leads to; the mapped platform error when the path cannot be asked.
result_t IsDirectory(std::u16string_view path);

/// Whether a path exists, as a file or a directory; links are not followed.
bool Exists(std::u16string_view path);

}  // namespace qor::filesystem
