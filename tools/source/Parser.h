// Reads the entries of a file, and its mistakes.
#pragma once

#include <cstdint>
#include <string_view>

#include "source/Recovery.h"
#include "source/Scanner.h"
#include "source/Syntax.h"

namespace lm_source {

/// Walks once over a file, with as little looking ahead as the engine's grammar. Only a mistake makes
/// it go back, to a line that the faulty entry may have swallowed.
class Parser {
public:
    Parser(std::string_view bytes, Range content);
    Parser(const Parser&) = delete;  // the recovery refers to it
    Parser& operator=(const Parser&) = delete;

    Syntax Parse();

private:
    /// What came of looking for an operand. Only a mistake ends the entry.
    enum class Found { Operand, Nothing, Mistake };

    bool ParseEntry();
    bool ParseValue(bool isForm);
    Found ParseOperand(bool beginsForm);
    Found ParseString(bool beginsForm);
    Found ParseParameter(bool beginsForm);
    Found ParsePluralForm(bool beginsForm);
    bool ParsePluralHead();
    bool ParseForms();

    Found AddOperand(OperandKind kind, std::uint32_t end, bool beginsForm);

    /// Notes a mistake at a place, where the parser then stands.
    /// @return false
    bool Fail(MistakeKind kind, std::uint32_t at, Range other = {});
    Range ShownAt(std::uint32_t at) const;

    std::string_view bytes_;
    Scanner scanner_;
    Recovery recovery_;
    Syntax syntax_;
    std::uint32_t at_;
    std::uint32_t entryBegin_;  // of the entry that is being read
    int depth_ = 0;
};

}  // namespace lm_source
