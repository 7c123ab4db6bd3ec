// What cultures are called outside.
#pragma once

#include <string>
#include <string_view>

#include "tree/CultureName.h"

namespace lm_exchange {

/// "pt-BR", "zh-Hans", "de-AT-variant"; "und" for the neutral texts.
std::string LanguageTag(const lm_tree::CultureName& culture);

/// Whether a name is the culture's. Tools write regions large or small, and part names by "_" or "@".
bool IsNameOf(std::string_view language, const lm_tree::CultureName& culture);

}  // namespace lm_exchange
