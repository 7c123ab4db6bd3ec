#include "plural/PluralExpression.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace lm_plural {

namespace {

/// Nobody's rule is longer; what is read and evaluated by recursion stays small.
constexpr std::size_t kLongest = 2000;
constexpr std::size_t kDeepest = 100;

constexpr bool IsDigit(char unit) {
    return unit >= '0' && unit <= '9';
}

}  // namespace

/// A method for each thing that binds tighter than the one before.
class PluralExpressionReader {
public:
    PluralExpressionReader(std::string_view text, PluralExpression& expression)
        : rest_(text), nodes_(expression.nodes_) {}

    void Read() {
        if (rest_.size() > kLongest) {
            Fail();
        }
        ReadChoice();
        if (SkipBlanks(); !rest_.empty()) {
            Fail();
        }
    }

private:
    using Op = PluralExpression::Op;

    struct Sign {
        std::string_view text;
        Op op;
    };

    [[noreturn]] static void Fail() { throw std::invalid_argument("not a plural expression"); }

    void SkipBlanks() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\n"), rest_.size()));
    }

    bool Take(std::string_view sign) {
        SkipBlanks();
        const bool isThere = rest_.substr(0, sign.size()) == sign;
        rest_.remove_prefix(isThere ? sign.size() : 0);
        return isThere;
    }

    void Require(std::string_view sign) {
        if (!Take(sign)) {
            Fail();
        }
    }

    std::size_t Add(Op op, std::size_t first = 0, std::size_t second = 0, std::size_t third = 0) {
        nodes_.push_back({op, 0, {first, second, third}});
        return nodes_.size() - 1;
    }

    std::size_t ReadChoice() {
        if (++depth_ > kDeepest) {
            Fail();
        }
        std::size_t node = ReadBinary(0);
        if (Take("?")) {
            const std::size_t yes = ReadChoice();
            Require(":");
            const std::size_t no = ReadChoice();
            node = Add(Op::Choose, node, yes, no);
        }
        --depth_;
        return node;
    }

    /// Loosest first; a sign that begins another one stands behind it.
    static const std::vector<std::vector<Sign>>& Levels() {
        static const std::vector<std::vector<Sign>> levels = {
            {{"||", Op::Or}},
            {{"&&", Op::And}},
            {{"==", Op::Equal}, {"!=", Op::NotEqual}},
            {{"<=", Op::LessOrEqual},
             {">=", Op::GreaterOrEqual},
             {"<", Op::Less},
             {">", Op::Greater}},
            {{"+", Op::Add}, {"-", Op::Subtract}},
            {{"*", Op::Multiply}, {"/", Op::Divide}, {"%", Op::Remainder}}};
        return levels;
    }

    std::size_t ReadBinary(std::size_t level) {
        if (level == Levels().size()) {
            return ReadOperand();
        }
        std::size_t node = ReadBinary(level + 1);
        while (true) {
            const auto& signs = Levels()[level];
            const auto sign = std::find_if(signs.begin(), signs.end(),
                                           [this](const Sign& known) { return Take(known.text); });
            if (sign == signs.end()) {
                return node;
            }
            const std::size_t right = ReadBinary(level + 1);
            node = Add(sign->op, node, right);
        }
    }

    std::size_t ReadOperand() {
        if (++depth_ > kDeepest) {
            Fail();
        }
        std::size_t node = 0;
        if (Take("!")) {
            const std::size_t operand = ReadOperand();
            node = Add(Op::Not, operand);
        } else if (Take("(")) {
            node = ReadChoice();
            Require(")");
        } else if (Take("n")) {
            node = Add(Op::Number);
        } else {
            node = ReadConstant();
        }
        --depth_;
        return node;
    }

    std::size_t ReadConstant() {
        if (rest_.empty() || !IsDigit(rest_.front())) {
            Fail();
        }
        std::uint64_t constant = 0;
        for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
            constant = constant * 10 + static_cast<std::uint64_t>(rest_.front() - '0');
        }
        const std::size_t node = Add(Op::Constant);
        nodes_[node].constant = constant;
        return node;
    }

    std::string_view rest_;
    std::vector<PluralExpression::Node>& nodes_;
    std::size_t depth_ = 0;
};

PluralExpression::PluralExpression(std::string_view text) {
    PluralExpressionReader(text, *this).Read();
}

std::optional<std::uint64_t> PluralExpression::ValueFor(std::uint64_t number) const {
    return Value(nodes_.size() - 1, number);
}

std::optional<std::uint64_t> PluralExpression::Value(std::size_t at, std::uint64_t number) const {
    const Node& node = nodes_[at];
    if (node.op == Op::Number || node.op == Op::Constant) {
        return node.op == Op::Number ? number : node.constant;
    }
    const auto first = Value(node.operands[0], number);
    if (!first) {
        return first;
    }
    switch (node.op) {
        case Op::Not:
            return *first == 0 ? 1 : 0;
        case Op::Choose:
            return Value(node.operands[*first != 0 ? 1 : 2], number);
        case Op::And:
        case Op::Or:
            if ((*first != 0) == (node.op == Op::Or)) {
                return node.op == Op::Or ? 1 : 0;
            }
            break;
        default:
            break;
    }
    const auto second = Value(node.operands[1], number);
    return second ? Computed(node.op, *first, *second) : second;
}

std::optional<std::uint64_t> PluralExpression::Computed(Op op, std::uint64_t left,
                                                        std::uint64_t right) {
    switch (op) {
        case Op::Multiply:
            return left * right;
        case Op::Divide:
            return right != 0 ? std::optional(left / right) : std::nullopt;
        case Op::Remainder:
            return right != 0 ? std::optional(left % right) : std::nullopt;
        case Op::Add:
            return left + right;
        case Op::Subtract:
            return left - right;
        case Op::Less:
            return left < right ? 1 : 0;
        case Op::Greater:
            return left > right ? 1 : 0;
        case Op::LessOrEqual:
            return left <= right ? 1 : 0;
        case Op::GreaterOrEqual:
            return left >= right ? 1 : 0;
        case Op::Equal:
            return left == right ? 1 : 0;
        case Op::NotEqual:
            return left != right ? 1 : 0;
        default:  // of a condition what its second part says
            return right != 0 ? 1 : 0;
    }
}

}  // namespace lm_plural
