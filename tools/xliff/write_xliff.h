// Writes the texts of a culture and scope as a file.
#pragma once

#include <string>

#include "exchange/Format.h"
#include "exchange/ScopeTexts.h"

namespace lm_xliff {

std::string WriteXliff(const lm_exchange::ScopeTexts& texts, const lm_exchange::Format& format);

}  // namespace lm_xliff
