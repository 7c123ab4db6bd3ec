// What can be said about a plural rule without asking for a text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "PluralFormRuleId.h"
#include "plural/Condition.h"

namespace lm_plural {

/// How many numbers of 0 or more select a form.
enum class Use : std::uint8_t { None, One, Several };

/// Immutable; may be used from any number of threads.
class PluralRule {
public:
    using Id = LocalizationManager::StringLocalizing::Model::PluralFormRuleId;

    /// The one that the engine brings along.
    static PluralRule BuiltIn(const Id& id);

    /// One of a file. Conditions compare the number, or a remainder of it, with constants, so that
    /// beyond the largest constant they repeat. The numbers up to there, and ten million more if a
    /// period is not shorter, are tried.
    explicit PluralRule(std::vector<Condition> conditions);

    /// The ones of a file, one for each form; none of a rule that the engine brings along.
    const std::vector<Condition>& Conditions() const noexcept { return conditions_; }

    std::size_t FormCount() const noexcept { return uses_.size(); }

    /// Empty for a number that no condition accepts.
    /// @param number  0 or more.
    std::optional<std::size_t> FormOf(std::uint64_t number) const;

    /// @param form  below `FormCount()`. `Several` when too few numbers were tried to know.
    Use UseOf(std::size_t form) const noexcept { return uses_[form]; }

    /// The smallest number of 0 or more that no condition accepts; empty when none was found.
    std::optional<std::uint64_t> Gap() const noexcept { return gap_; }

    /// Whether enough numbers were tried to know that there is no gap when none was found.
    bool IsProven() const noexcept { return isProven_; }

    /// Whether the rules choose the same forms in the same way.
    bool IsSameAs(const PluralRule& other) const noexcept;

private:
    struct Interval;

    PluralRule() = default;
    void Examine();
    bool Try(const Interval& interval, std::uint64_t period);
    void Count(std::optional<std::size_t> form, std::uint64_t number, bool repeats);

    std::vector<Condition> conditions_;
    std::vector<std::uint8_t> builtIn_;  // the form of each number, as far as they matter
    std::vector<Use> uses_;
    std::optional<std::uint64_t> gap_;
    bool isProven_ = true;
    std::uint64_t steps_ = 0;
};

}  // namespace lm_plural
