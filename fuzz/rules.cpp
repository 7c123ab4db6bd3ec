// Fuzzes the parser of plural rule files, against a reader that decides entries while it reads them.
#include <cwctype>
#include <limits>
#include <set>
#include <vector>

#include "Input.h"
#include "ParsingException.h"
#include "PluralFormRulesParser.h"

namespace {

using namespace LocalizationManager::StringLocalizing;

/// Reads a rule file for one number.
class RuleReader {
public:
    bool isFaulty = false;
    std::set<std::int64_t> constants;

    RuleReader(std::u16string_view text, std::int64_t number) : rest_(text), number_(number) {}

    /// Whether each entry holds; nothing of use for a faulty text.
    std::vector<bool> Entries() {
        std::vector<bool> entries;
        for (Take(u""); !rest_.empty() && !isFaulty; Take(u"")) {
            entries.push_back(Condition(0));
            Demand(Take(u";") && entries.size() <= 5);
        }
        return entries;
    }

private:
    bool Demand(bool holds) {
        isFaulty = isFaulty || !holds;
        return holds;
    }

    /// Takes a token, and the space before it.
    bool Take(std::u16string_view token) {
        const std::u16string_view before = rest_;
        while (token != u")" && !rest_.empty() && std::iswspace(rest_[0]) != 0) {
            rest_.remove_prefix(1);
        }
        const bool isThere = rest_.substr(0, token.size()) == token;
        rest_ = isThere ? rest_.substr(token.size()) : before;
        return isThere;
    }

    /// Conditions joined by "||" at level 0, by "&&" at level 1, and one condition at level 2.
    bool Condition(int level) {
        if (level == 2) {
            return Take(u"(") ? Parentheses() : Comparison();
        }
        bool holds = Condition(level + 1);
        while (Take(level == 0 ? u"||" : u"&&")) {
            const bool next = Condition(level + 1);
            holds = level == 0 ? holds || next : holds && next;
        }
        return holds;
    }

    bool Parentheses() {
        const bool holds = Demand(++depth_ <= 64) && Condition(0);
        Demand(Take(u")"));
        --depth_;
        return holds;
    }

    bool Comparison() {
        Demand(Take(u"n"));
        std::int64_t term = number_;
        if (Take(u"%")) {
            const std::int64_t divisor = Constant();
            term = Demand(divisor != 0) ? term % divisor : 0;
        }
        for (const std::u16string_view sign : {u"==", u"!=", u"<=", u">=", u"<", u">"}) {
            if (Take(sign)) {
                const std::int64_t constant = Constant();
                const char16_t order = term < constant ? u'<' : term > constant ? u'>' : u'=';
                return sign == u"!=" ? order != u'='
                                     : sign.find(order) != std::u16string_view::npos;
            }
        }
        return Demand(false);
    }

    std::int64_t Constant() {
        Demand(Take(u"") && !rest_.empty() && std::iswdigit(rest_[0]) != 0);
        constexpr std::int64_t kLargest = std::numeric_limits<std::uint32_t>::max();
        std::int64_t constant = 0;
        for (; !rest_.empty() && std::iswdigit(rest_[0]) != 0; rest_.remove_prefix(1)) {
            constant = std::min(constant * 10 + (rest_[0] - u'0'), kLargest + 1);
        }
        Demand(constant <= kLargest);
        return *constants.insert(constant).first;
    }

    std::u16string_view rest_;
    std::int64_t number_;
    int depth_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text = lm_fuzz::Decode(data, size);
    const auto range = Parsing::MakeSourceRange(text, u"Plural.rule");
    Model::PluralFormRule rule;
    RuleReader reader(text, 0);
    reader.Entries();
    try {
        Parsing::ParsePluralFormRules(range.first, range.last, rule);
        lm_fuzz::Require(!reader.isFaulty, "no fault is overlooked");
    } catch (const Parsing::ParsingException&) {
        lm_fuzz::Require(reader.isFaulty, "only faults are reported");
        return 0;
    }
    using Limits = std::numeric_limits<std::int64_t>;
    std::set<std::int64_t> numbers{Limits::min(), -4294967297, -1, 11, 112, Limits::max()};
    for (const std::int64_t constant : reader.constants) {
        numbers.insert({constant - 1, constant, constant + 1});
    }
    for (const std::int64_t number : numbers) {
        std::vector<bool> held;
        for (const Model::PluralFormCondition& holds : rule) {
            held.push_back(holds(number));
        }
        lm_fuzz::Require(RuleReader(text, number).Entries() == held, "entries hold for the same");
    }
    return 0;
}
