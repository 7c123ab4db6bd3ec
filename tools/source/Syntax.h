// What a file consists of.
#pragma once

#include <string_view>
#include <vector>

#include "source/Entry.h"
#include "source/KeyCase.h"
#include "source/KeyTable.h"
#include "source/Mistake.h"
#include "source/Operand.h"
#include "source/Range.h"

namespace lm_source {

/// What the parser finds. `Document` says what each part means.
struct Syntax {
    KeyCase keyCase;
    KeyTable keys;
    std::vector<Entry> entries;
    std::vector<Operand> operands;
    std::vector<Mistake> mistakes;
    std::vector<Range> skipped;
};

/// Makes the last entry known by its key, or notes that it is a duplicate.
void AddLastKey(Syntax& syntax, std::string_view bytes);

}  // namespace lm_source
