// The condition language of PO headers.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lm_plural {

/// What stands behind "plural=": an expression of C over unsigned numbers. Immutable.
class PluralExpression {
public:
    /// @throws std::invalid_argument when the text is none.
    explicit PluralExpression(std::string_view text);

    /// Empty for a division by zero.
    std::optional<std::uint64_t> ValueFor(std::uint64_t number) const;

private:
    friend class PluralExpressionReader;
    friend class RuleFileWriter;

    enum class Op : std::uint8_t {
        Number,
        Constant,
        Not,
        Multiply,
        Divide,
        Remainder,
        Add,
        Subtract,
        Less,
        Greater,
        LessOrEqual,
        GreaterOrEqual,
        Equal,
        NotEqual,
        And,
        Or,
        Choose
    };

    /// Its operands stand before it, as numbers of nodes.
    struct Node {
        Op op{};
        std::uint64_t constant = 0;
        std::size_t operands[3] = {};
    };

    std::optional<std::uint64_t> Value(std::size_t at, std::uint64_t number) const;
    static std::optional<std::uint64_t> Computed(Op op, std::uint64_t left, std::uint64_t right);

    std::vector<Node> nodes_;  // the last one is the whole
};

}  // namespace lm_plural
