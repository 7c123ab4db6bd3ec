// What a file that comes back from translators changes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "exchange/Format.h"
#include "exchange/ScopeTexts.h"
#include "exchange/TextChanges.h"
#include "exchange/TranslatedFile.h"

namespace lm_exchange {

/// How many units say what.
struct Counts {
    std::size_t unchanged = 0;
    std::size_t unfinished = 0;
    std::size_t empty = 0;  // those with some empty forms, or with parts of a text, included
    std::size_t obsolete = 0;
    std::size_t outdated = 0;  // the reference has another text by now, or no such key
};

struct Import {
    TextChanges changes;
    Counts counts;
    std::vector<std::string> errors;  // of single texts; the rest is imported
};

/// @param texts  of a culture; has to outlive what is returned.
/// @throws std::runtime_error for a file of another culture, scope or plural rule, or one that lacks
///         what it must have: then nothing of it is good.
Import ImportFile(const TranslatedFile& file, const Format& format, const ScopeTexts& texts);

}  // namespace lm_exchange
