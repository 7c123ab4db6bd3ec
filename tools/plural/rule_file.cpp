#include "plural/rule_file.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#include "FromUtf8.h"
#include "plural/PluralRule.h"
#include "plural/parse_rule.h"

namespace lm_plural {

namespace {

constexpr std::size_t kMostForms = 5;

/// Thrown inside only.
struct NotSayable {};

}  // namespace

/// Rule files compare the number, or its remainder by a constant, with a constant, and join by "and" and
/// "or" alone: what is negated is turned around down to its comparisons.
class RuleFileWriter {
public:
    explicit RuleFileWriter(const PluralExpression& expression) : nodes_(expression.nodes_) {}

    /// A condition is asked only where those before it did not hold.
    std::string Write(std::size_t forms) const {
        std::string text;
        std::size_t at = nodes_.size() - 1;
        for (std::size_t form = 0; form + 1 < forms; ++form) {
            const auto& [test, yes, no] = nodes_[at].operands;
            if (nodes_[at].op == Op::Choose && nodes_[yes].op == Op::Constant &&
                nodes_[yes].constant == form) {
                text += Source(Holds(test, true)) + ";\n";
                at = no;
            } else {
                text += Source(Equals(at, form)) + ";\n";
            }
        }
        return text + kAlways + ";\n";
    }

private:
    using Op = PluralExpression::Op;

    static constexpr const char* kAlways = "n >= 0 || n < 0";
    static constexpr const char* kNever = "n < 0 && n > 0";

    /// A condition; a constant one has no text.
    struct Condition {
        std::string text;
        bool isAlways = false;
    };

    static Condition Constant(bool isAlways) { return {"", isAlways}; }

    static std::string Source(const Condition& condition) {
        const std::string& text = condition.text;
        if (text.empty()) {
            return condition.isAlways ? kAlways : kNever;
        }
        return text.front() == '(' ? text.substr(1, text.size() - 2) : text;
    }

    static Condition Join(bool isAnd, const Condition& left, const Condition& right) {
        if (left.text.empty()) {
            return left.isAlways == isAnd ? right : left;
        }
        if (right.text.empty()) {
            return right.isAlways == isAnd ? left : right;
        }
        return {'(' + left.text + (isAnd ? " && " : " || ") + right.text + ')', false};
    }

    /// When a node has a value.
    Condition Equals(std::size_t at, std::uint64_t value) const {
        const auto& node = nodes_[at];
        switch (node.op) {
            case Op::Constant:
                return Constant(node.constant == value);
            case Op::Choose: {
                const auto& [test, yes, no] = node.operands;
                return Join(false, Join(true, Holds(test, true), Equals(yes, value)),
                            Join(true, Holds(test, false), Equals(no, value)));
            }
            case Op::Number:
            case Op::Remainder:
                return {Term(at) + " == " + Limited(value), false};
            default:
                return value <= 1 ? Holds(at, value == 1) : Constant(false);
        }
    }

    /// When a node is true, or when it is not.
    Condition Holds(std::size_t at, bool isTrue) const {
        const auto& node = nodes_[at];
        const auto& operands = node.operands;
        switch (node.op) {
            case Op::Constant:
                return Constant((node.constant != 0) == isTrue);
            case Op::Not:
                return Holds(operands[0], !isTrue);
            case Op::And:
            case Op::Or:
                return Join((node.op == Op::And) == isTrue, Holds(operands[0], isTrue),
                            Holds(operands[1], isTrue));
            case Op::Choose:
                return Join(false, Join(true, Holds(operands[0], true), Holds(operands[1], isTrue)),
                            Join(true, Holds(operands[0], false), Holds(operands[2], isTrue)));
            case Op::Number:
            case Op::Remainder:
                return {Term(at) + (isTrue ? " != 0" : " == 0"), false};
            default:
                return {Comparison(at, isTrue), false};
        }
    }

    std::string Comparison(std::size_t at, bool isTrue) const {
        struct Sign {
            Op op;
            const char* text;
            const char* negated;
            const char* turned;
            const char* turnedNegated;
        };
        static constexpr std::array<Sign, 6> signs = {{{Op::Equal, "==", "!=", "==", "!="},
                                                       {Op::NotEqual, "!=", "==", "!=", "=="},
                                                       {Op::Less, "<", ">=", ">", "<="},
                                                       {Op::Greater, ">", "<=", "<", ">="},
                                                       {Op::LessOrEqual, "<=", ">", ">=", "<"},
                                                       {Op::GreaterOrEqual, ">=", "<", "<=", ">"}}};
        const auto& node = nodes_[at];
        for (const Sign& sign : signs) {
            if (sign.op != node.op) {
                continue;
            }
            const auto& left = nodes_[node.operands[0]];
            const auto& right = nodes_[node.operands[1]];
            if (right.op == Op::Constant) {
                return Term(node.operands[0]) + ' ' + (isTrue ? sign.text : sign.negated) + ' ' +
                       Limited(right.constant);
            }
            if (left.op == Op::Constant) {
                return Term(node.operands[1]) + ' ' + (isTrue ? sign.turned : sign.turnedNegated) +
                       ' ' + Limited(left.constant);
            }
        }
        throw NotSayable();
    }

    std::string Term(std::size_t at) const {
        const auto& node = nodes_[at];
        if (node.op == Op::Number) {
            return "n";
        }
        if (node.op == Op::Remainder && nodes_[node.operands[0]].op == Op::Number &&
            nodes_[node.operands[1]].op == Op::Constant && nodes_[node.operands[1]].constant != 0) {
            return "n % " + Limited(nodes_[node.operands[1]].constant);
        }
        throw NotSayable();
    }

    static std::string Limited(std::uint64_t constant) {
        if (constant > std::numeric_limits<std::uint32_t>::max()) {
            throw NotSayable();
        }
        return std::to_string(constant);
    }

    const std::vector<PluralExpression::Node>& nodes_;
};

std::optional<std::string> RuleFileOf(const PluralForms& forms) {
    if (forms.count == 0 || forms.count > kMostForms) {
        return std::nullopt;
    }
    try {
        std::string text = RuleFileWriter(forms.expression).Write(forms.count);
        const PluralRule rule(ParseRule(LocalizationManager::Text::FromUtf8(text)));
        return Agree(forms, rule) ? std::optional(std::move(text)) : std::nullopt;
    } catch (const NotSayable&) {
        return std::nullopt;
    }
}

}  // namespace lm_plural
