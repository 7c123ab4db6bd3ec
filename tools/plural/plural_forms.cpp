#include "plural/plural_forms.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace lm_plural {

namespace {

/// All rules that the engine brings along, the way gettext's documents write them.
constexpr std::array<const char*, 14> kExpressions = {
    "0",
    "(n != 1)",
    "(n > 1)",
    "(n==1) ? 0 : (n>=2 && n<=4) ? 1 : 2",
    "(n%10==1 && n%100!=11 ? 0 : n%10>=2 && (n%100<10 || n%100>=20) ? 1 : 2)",
    "(n%10==1 && n%100!=11 ? 0 : n==0 ? 1 : 2)",
    "(n%10==1 ? 0 : n%10==2 ? 1 : 2)",
    "(n==1 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>20) ? 1 : 2)",
    "(n==1 ? 0 : (n==0 || (n%100>0 && n%100<20)) ? 1 : 2)",
    "(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>20) ? 1 : 2)",
    "(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2)",
    "(n==1 ? 0 : n%100==2 ? 1 : n%100==3 || n%100==4 ? 2 : 3)",
    "(n==1 ? 0 : n==2 ? 1 : n%10>=3 && n%10<=6 ? 2 : n%10>=7 && n%10<=9 ? 3 : 4)",
    "(n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && n%100<=10 ? 3 : n%100>=11 && n%100<=99 ? 4 : 5)",
};

constexpr std::uint64_t kSmall = 2000;
constexpr std::uint64_t kAround = 120;  // behind a power of ten
constexpr std::uint64_t kLargest = 1'000'000'000;

std::string TextOf(const Condition& condition) {
    using LocalizationManager::StringLocalizing::Parsing::CompareOperator;
    if (condition.kind == Condition::Kind::Comparison) {
        static constexpr std::array<const char*, 6> signs = {"==", "!=", "<", "<=", ">", ">="};
        static constexpr std::array<CompareOperator, 6> operators = {
            CompareOperator::Equal,   CompareOperator::NotEqual,
            CompareOperator::Less,    CompareOperator::LessOrEqual,
            CompareOperator::Greater, CompareOperator::GreaterOrEqual};
        const auto* const found = std::find(operators.begin(), operators.end(), condition.op);
        return "n" + (condition.divisor != 0 ? '%' + std::to_string(condition.divisor) : "") +
               signs.at(static_cast<std::size_t>(found - operators.begin())) +
               std::to_string(condition.constant);
    }
    std::string text;
    for (const Condition& part : condition.parts) {
        text += text.empty() ? "" : condition.kind == Condition::Kind::All ? " && " : " || ";
        text += TextOf(part);
    }
    return '(' + text + ')';
}

void AddConstants(const Condition& condition, std::vector<std::uint64_t>& numbers) {
    for (const Condition& part : condition.parts) {
        AddConstants(part, numbers);
    }
    if (condition.kind == Condition::Kind::Comparison) {
        const std::uint64_t constant = condition.constant;
        numbers.insert(numbers.end(), {constant, constant + 1, constant == 0 ? 0 : constant - 1});
    }
}

std::size_t CountOf(const PluralRule& rule) {
    return std::max<std::size_t>(rule.FormCount(), 1);
}

std::string Field(std::size_t count, const std::string& expression) {
    return "nplurals=" + std::to_string(count) + "; plural=" + expression + ';';
}

[[noreturn]] void ThrowNoPluralForms() {
    throw std::invalid_argument("not 'nplurals=NUMBER; plural=EXPRESSION;'");
}

/// What stands behind a name and "=".
std::string_view Behind(std::string_view field, std::string_view name) {
    std::size_t at = field.find(name);
    at = at == std::string_view::npos ? at : field.find('=', at + name.size());
    if (at == std::string_view::npos) {
        ThrowNoPluralForms();
    }
    field.remove_prefix(at + 1);
    field.remove_prefix(std::min(field.find_first_not_of(" \t"), field.size()));
    return field;
}

std::pair<std::size_t, std::string_view> PartsOf(std::string_view field) {
    const std::string_view number = Behind(field, "nplurals");
    std::size_t count = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), count);
    if (read.ec != std::errc()) {
        ThrowNoPluralForms();
    }
    field.remove_prefix(static_cast<std::size_t>(read.ptr - field.data()));
    const std::string_view expression = Behind(field, "plural");
    return {count, expression.substr(0, expression.find(';'))};
}

}  // namespace

PluralForms::PluralForms(std::string_view field) : PluralForms(PartsOf(field)) {}

PluralForms::PluralForms(std::pair<std::size_t, std::string_view> parts)
    : count(parts.first), expression(parts.second) {}

std::string PluralFormsOf(const PluralRule& rule) {
    const std::size_t count = CountOf(rule);
    if (!rule.Conditions().empty()) {
        std::string expression;
        for (std::size_t form = 0; form + 1 < count; ++form) {
            expression += TextOf(rule.Conditions()[form]) + " ? " + std::to_string(form) + " : ";
        }
        return Field(count, expression + std::to_string(count - 1));
    }
    for (const char* const expression : kExpressions) {
        std::string field = Field(count, expression);
        if (Agree(PluralForms(field), rule)) {
            return field;
        }
    }
    throw std::logic_error("no expression is known for a rule of the engine");
}

bool Agree(const PluralForms& forms, const PluralRule& rule) {
    const std::vector<std::uint64_t> numbers = NumbersToTry(rule);
    const std::size_t last = CountOf(rule) - 1;
    return forms.count == last + 1 &&
           std::all_of(numbers.begin(), numbers.end(), [&](std::uint64_t number) {
               return forms.expression.ValueFor(number) == rule.FormOf(number).value_or(last);
           });
}

std::vector<std::uint64_t> NumbersToTry(const PluralRule& rule) {
    std::vector<std::uint64_t> numbers;
    for (std::uint64_t number = 0; number < kSmall; ++number) {
        numbers.push_back(number);
    }
    for (std::uint64_t power = kSmall * 5; power <= kLargest; power *= 10) {
        for (std::uint64_t number = power - 1; number < power + kAround; ++number) {
            numbers.push_back(number);
        }
    }
    for (const Condition& condition : rule.Conditions()) {
        AddConstants(condition, numbers);
    }
    return numbers;
}

}  // namespace lm_plural
