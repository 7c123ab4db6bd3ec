#include "source/Recovery.h"

#include <algorithm>
#include <vector>

namespace lm_source {

namespace {

/// Keeps of the last entry what stands before a place.
void Cut(Syntax& syntax, std::uint32_t end) {
    Entry& entry = syntax.entries.back();
    std::vector<Operand>& operands = syntax.operands;
    entry.isFaulty = true;
    entry.end = entry.key.end;
    entry.operandsEnd = static_cast<std::uint32_t>(operands.size());
    for (std::uint32_t i = entry.firstOperand; i < entry.operandsEnd; ++i) {
        operands[i].range.end = std::min(operands[i].range.end, end);
        operands[i].extent = std::min(operands[i].extent, entry.operandsEnd - i);
        entry.end = std::max(entry.end, operands[i].range.end);
    }
}

}  // namespace

std::uint32_t Recovery::Resume(Syntax& syntax) {
    const Mistake mistake = syntax.mistakes.back();
    const std::uint32_t start = StartOfFaultyEntry(syntax);
    const std::uint32_t next = scanner_.NextEntryLine(start);
    std::uint32_t known = std::min(DropFrom(syntax, next), mistake.range.begin);
    if (mistake.kind == MistakeKind::UnclosedString) {
        known = std::min(known, mistake.other.begin);
    }
    if (!syntax.entries.empty()) {
        CloseLastEntry(syntax, start, known);
    }
    if (known < next) {
        syntax.skipped.push_back({known, next});
    }
    return resumed_ = next;
}

std::uint32_t Recovery::StartOfFaultyEntry(const Syntax& syntax) const {
    std::uint32_t start = syntax.mistakes.back().entry;
    for (auto entry = syntax.entries.rbegin(); entry != syntax.entries.rend(); ++entry) {
        if (entry->key.begin == start) {
            continue;
        }
        if (entry->key.begin < resumed_ || scanner_.HasLineBreak({entry->end, start})) {
            break;
        }
        start = entry->key.begin;
    }
    return start;
}

/// Forgets what was read from a place on.
/// @return that place, or where the string begins that it cuts through.
std::uint32_t Recovery::DropFrom(Syntax& syntax, std::uint32_t next) const {
    std::vector<Entry>& entries = syntax.entries;
    for (; !entries.empty() && entries.back().key.begin >= next; entries.pop_back()) {
        if (entries.back().end != 0) {
            syntax.keys.Remove({bytes_, entries, syntax.keyCase},
                               static_cast<std::uint32_t>(entries.size() - 1));
        }
    }
    std::uint32_t known = next;
    std::vector<Operand>& operands = syntax.operands;
    while (!operands.empty() && (operands.back().range.begin >= next ||
                                 (operands.back().range.end > next &&
                                  operands.back().kind != OperandKind::PluralForm))) {
        known = std::min(known, operands.back().range.begin);
        operands.pop_back();
    }
    return known;
}

/// @param start  of the faulty entry.
/// @param known  up to where the parts of the last entry are.
void Recovery::CloseLastEntry(Syntax& syntax, std::uint32_t start, std::uint32_t known) const {
    const Entry& last = syntax.entries.back();
    const bool isOpen = last.end == 0;
    const bool ranOn = start < syntax.mistakes.back().entry && last.key.begin >= resumed_;
    if (isOpen || last.end > known || ranOn) {
        Cut(syntax, known);
    }
    if (isOpen) {
        AddLastKey(syntax, bytes_);
    }
}

}  // namespace lm_source
