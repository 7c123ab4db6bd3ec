// What stands at a place of a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "source/Document.h"

namespace lm_lsp {

struct Spot {
    const lm_source::Entry* entry = nullptr;      // that holds the place; null between entries
    bool isKey = false;                           // the place is in its key
    const lm_source::Operand* operand = nullptr;  // the innermost one; null for none
    lm_source::Range range;                       // of the key, the operand, or its name

    /// The plural forms around the operand with the numbers of their forms, the innermost last.
    std::vector<std::pair<const lm_source::Operand*, std::size_t>> forms;
};

/// The end of a name still belongs to it: there the cursor stands when it has been typed.
Spot SpotAt(const lm_source::Document& document, std::uint32_t offset);

}  // namespace lm_lsp
