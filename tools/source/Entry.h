// A key and its value, as they stand in a file.
#pragma once

#include <cstdint>

#include "source/Range.h"

namespace lm_source {

struct Entry {
    Range key;
    std::uint32_t end = 0;           // behind the last operand
    std::uint32_t firstOperand = 0;  // in the document's operands
    std::uint32_t operandsEnd = 0;
    bool isFaulty = false;  // there is a mistake in it: only what stands before it is known
};

}  // namespace lm_source
