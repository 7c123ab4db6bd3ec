#include "lsp/Spot.h"

#include <algorithm>
#include <iterator>

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Range;

namespace {

bool Holds(Range range, std::uint32_t offset) {
    return range.begin <= offset && offset <= range.end;
}

void Descend(const Document& document, lm_source::Value value, std::uint32_t offset, Spot& spot) {
    for (const Operand& operand : value) {
        if (!Holds(operand.range, offset)) {
            continue;
        }
        if (operand.kind != OperandKind::PluralForm) {
            spot.operand = &operand;
            spot.range = operand.range;
            return;
        }
        const Range name = document.NameRange(operand);
        if (Holds({name.begin - 1, name.end}, offset)) {
            spot.operand = &operand;
            spot.range = name;
            return;
        }
        const auto forms = FormsOf(operand);
        for (std::size_t form = 0; form < forms.size(); ++form) {
            spot.forms.emplace_back(&operand, form);
            Descend(document, forms[form], offset, spot);
            if (spot.operand != nullptr) {
                return;
            }
            spot.forms.pop_back();
        }
        return;
    }
}

}  // namespace

Spot SpotAt(const Document& document, std::uint32_t offset) {
    Spot spot;
    const auto& entries = document.Entries();
    const auto after =
        std::upper_bound(entries.begin(), entries.end(), offset,
                         [](std::uint32_t at, const Entry& entry) { return at < entry.key.begin; });
    if (after == entries.begin()) {
        return spot;
    }
    const Entry& entry = *std::prev(after);
    if (!Holds({entry.key.begin, std::max(entry.key.end, entry.end)}, offset)) {
        return spot;
    }
    spot.entry = &entry;
    if (Holds(entry.key, offset)) {
        spot.isKey = true;
        spot.range = entry.key;
    } else {
        Descend(document, document.ValueOf(entry), offset, spot);
    }
    return spot;
}

}  // namespace lm_lsp
