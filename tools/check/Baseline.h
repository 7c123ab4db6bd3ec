// Findings that are known and accepted for the time being.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/CheckOptions.h"
#include "check/Report.h"

namespace lm_check {

/// Lines "rule culture scope key", sorted. No line numbers, so that a baseline outlives changes
/// elsewhere in a file. What concerns no key has its path there, and what harms nobody has "-" for
/// culture and scope.
class Baseline {
public:
    Baseline() = default;

    /// @throws std::invalid_argument with the number of a line that cannot be read.
    explicit Baseline(std::string_view text);

    std::string Text() const;

    /// Takes the findings that it knows out of a report. A finding that is known for some requests
    /// stays for the others.
    void Apply(Report& report);

    /// The entries that matched nothing, as far as the check could have found them.
    std::vector<std::string> Unused(const Report& report, const CheckOptions& options) const;

    /// Forgets entries.
    void Remove(const std::vector<std::string>& entries);

    /// Adds all findings of a report.
    void Add(const Report& report);

private:
    bool Matches(const std::string& entry);

    std::set<std::string> entries_;
    std::set<std::string> used_;
};

}  // namespace lm_check
