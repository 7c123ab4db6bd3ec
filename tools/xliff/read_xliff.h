// Reads a file that comes back.
#pragma once

#include <string>

#include "exchange/TranslatedFile.h"

namespace lm_xliff {

/// @param name  of the file, for messages.
/// @throws std::runtime_error when it is no XLIFF 1.2 in UTF-8.
lm_exchange::TranslatedFile ReadXliff(const std::string& name, const std::string& bytes);

}  // namespace lm_xliff
