// A row of the table of CLDR's rules.
#pragma once

#include <cstddef>

namespace lm_plural {

struct CldrRow {
    const char* culture;
    const char* categories;  // with blanks between them
    const char* conditions;  // of all categories but "other", as a rule file has them
};

extern const CldrRow kCldrRows[];
extern const std::size_t kCldrRowCount;

}  // namespace lm_plural
