// What gettext's library takes on trust.
#pragma once

#include <string>

namespace localize_po {

/// That a file is UTF-8 without a byte-order mark, and has no zero, nor an escape for a byte that is no text.
/// @throws std::runtime_error with the place.
void RequirePlainPo(const std::string& path, const std::string& bytes);

}  // namespace localize_po
