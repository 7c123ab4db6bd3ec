#include "plural/PluralRule.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

#include "PluralFormRules.h"

namespace lm_plural {

namespace {

/// Numbers that are tried beyond the largest constant.
constexpr std::uint64_t kMaxPeriod = 10'000'000;

/// Comparisons in all: a hostile rule has many constants far apart.
constexpr std::uint64_t kMaxSteps = 500'000'000;

/// The engine's own rules compare with constants below 100, and remainders by divisors of 100.
constexpr std::uint64_t kBuiltInPeriod = 100;
constexpr std::uint64_t kBuiltInNumbers = 3 * kBuiltInPeriod;

constexpr std::uint64_t kNoEnd = std::numeric_limits<std::uint64_t>::max();

/// What the comparisons of a rule come to.
struct Terms {
    std::uint64_t period = 1;            // of all remainders; more than `kMaxPeriod` for too long
    std::vector<std::uint64_t> changes;  // where comparisons of the number itself may change
    std::uint64_t comparisons = 0;
};

void Collect(const Condition& condition, Terms& terms) {
    for (const Condition& part : condition.parts) {
        Collect(part, terms);
    }
    if (condition.kind != Condition::Kind::Comparison) {
        return;
    }
    ++terms.comparisons;
    if (condition.divisor == 0) {
        terms.changes.push_back(condition.constant);
        terms.changes.push_back(std::uint64_t{condition.constant} + 1);
    } else if (terms.period <= kMaxPeriod) {
        terms.period = std::lcm(terms.period, std::uint64_t{condition.divisor});
    }
}

Terms TermsOf(const std::vector<Condition>& conditions) {
    Terms terms;
    terms.changes.push_back(0);
    for (const Condition& condition : conditions) {
        Collect(condition, terms);
    }
    std::sort(terms.changes.begin(), terms.changes.end());
    terms.changes.erase(std::unique(terms.changes.begin(), terms.changes.end()),
                        terms.changes.end());
    return terms;
}

/// Whether a condition, or one of those that it joins by "or", is known to accept every number.
bool AcceptsAll(const Condition& condition) {
    const Terms terms = TermsOf({condition});
    if (terms.period <= kMaxPeriod &&
        terms.changes.size() * terms.period <=
            kMaxSteps / std::max<std::uint64_t>(terms.comparisons, 1)) {
        return !PluralRule({condition}).Gap();  // which takes no more steps than there are
    }
    return condition.kind == Condition::Kind::Any &&
           std::any_of(condition.parts.begin(), condition.parts.end(), &AcceptsAll);
}

}  // namespace

/// Numbers for which no comparison of the number itself changes.
struct PluralRule::Interval {
    std::uint64_t begin;
    std::uint64_t end;
};

PluralRule PluralRule::BuiltIn(const Id& id) {
    PluralRule rule;
    const auto entries =
        LocalizationManager::StringLocalizing::Model::CreatePluralFormRules()->GetRule(id);
    rule.uses_.resize(entries.size());
    for (std::uint64_t number = 0; number < kBuiltInNumbers; ++number) {
        const auto holds = [number](const auto& entry) {
            return entry(static_cast<std::int64_t>(number));
        };
        const auto form = static_cast<std::size_t>(
            std::find_if(entries.begin(), entries.end(), holds) - entries.begin());
        rule.builtIn_.push_back(static_cast<std::uint8_t>(form));
        rule.Count(form, number, number >= kBuiltInPeriod);
    }
    return rule;
}

PluralRule::PluralRule(std::vector<Condition> conditions)
    : conditions_(std::move(conditions)), uses_(conditions_.size()) {
    Examine();
}

std::optional<std::size_t> PluralRule::FormOf(std::uint64_t number) const {
    if (!builtIn_.empty()) {
        const std::uint64_t representative =
            number < kBuiltInNumbers ? number
                                     : kBuiltInNumbers - kBuiltInPeriod + number % kBuiltInPeriod;
        return builtIn_[static_cast<std::size_t>(representative)];
    }
    const auto found =
        std::find_if(conditions_.begin(), conditions_.end(),
                     [number](const Condition& condition) { return condition.HoldsFor(number); });
    return found != conditions_.end()
               ? std::optional(static_cast<std::size_t>(found - conditions_.begin()))
               : std::nullopt;
}

bool PluralRule::IsSameAs(const PluralRule& other) const noexcept {
    return !builtIn_.empty() && builtIn_ == other.builtIn_;
}

/// Tries all numbers that differ: between two changes, those of one period.
void PluralRule::Examine() {
    const Terms terms = TermsOf(conditions_);
    isProven_ = terms.period <= kMaxPeriod;
    if (!isProven_ && std::any_of(conditions_.begin(), conditions_.end(), &AcceptsAll)) {
        isProven_ = true;
        std::fill(uses_.begin(), uses_.end(), Use::Several);
        return;
    }
    const std::uint64_t period = std::min(terms.period, kMaxPeriod);
    steps_ = kMaxSteps / std::max<std::uint64_t>(terms.comparisons, 1);
    for (std::size_t i = 0; i < terms.changes.size() && (i == 0 || steps_ != 0); ++i) {
        const bool isLast = i + 1 == terms.changes.size();
        isProven_ =
            Try({terms.changes[i], isLast ? kNoEnd : terms.changes[i + 1]}, period) && isProven_;
    }
    if (!isProven_) {  // what was not tried may select any form
        std::fill(uses_.begin(), uses_.end(), Use::Several);
    }
}

/// @return whether there were steps enough.
bool PluralRule::Try(const Interval& interval, std::uint64_t period) {
    const std::uint64_t length = interval.end - interval.begin;
    for (std::uint64_t i = 0; i < std::min(length, period); ++i) {
        if (steps_ == 0) {
            return false;
        }
        --steps_;
        Count(FormOf(interval.begin + i), interval.begin + i, length - i > period);
    }
    return true;
}

/// @param repeats  whether the same holds for a larger number.
void PluralRule::Count(std::optional<std::size_t> form, std::uint64_t number, bool repeats) {
    if (!form) {
        gap_ = gap_ ? gap_ : number;
        return;
    }
    Use& use = uses_[*form];
    use = use == Use::None && !repeats ? Use::One : Use::Several;
}

}  // namespace lm_plural
