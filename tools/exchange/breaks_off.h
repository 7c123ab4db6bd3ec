// Texts that are cut off without a trace in the file.
#pragma once

#include <string>

namespace lm_exchange {

/// Whether the last text of a file ends where one of its lines does, and not in its own way.
/// @param whole          what it was.
/// @param reference      what it is a translation of.
/// @param isFurtherLine  whether the file's last line goes on with it.
bool BreaksOff(const std::string& text, const std::string& whole, const std::string& reference,
               bool isFurtherLine);

}  // namespace lm_exchange
