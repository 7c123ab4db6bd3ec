// Where rules leave what they find.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "check/CheckOptions.h"
#include "check/Finding.h"
#include "source/LineTable.h"
#include "tree/TreeFile.h"

namespace lm_check {

/// A text file or a rule file, as far as findings need it.
struct SourceView {
    const lm_tree::TreeFile& file;
    std::string_view bytes;
    const lm_source::LineTable& lines;

    Location At(Range range) const;
};

/// Keeps one finding per place and message, for all requests that it holds for.
class Collector {
public:
    explicit Collector(const CheckOptions& options) : options_(&options) {}

    /// Whether findings of a rule are wanted.
    bool Wants(Rule rule) const { return options_->IsOn(rule); }

    /// Adds a finding with its line. One that holds for no request is a warning.
    /// @return the finding, for further parts; null when nobody wants it or it is known already.
    Finding* Add(Rule rule, const SourceView& source, Range range, std::string_view key,
                 const std::vector<Request>& requests, std::string message);

    /// The same with a severity below that of the rule.
    Finding* AddWarning(Rule rule, const SourceView& source, Range range, std::string_view key,
                        const std::vector<Request>& requests, std::string message);

    /// A finding of a whole file or directory.
    Finding* AddWhole(Rule rule, Side side, const std::string& path,
                      const std::vector<Request>& requests, std::string message,
                      std::string_view key = {});

    /// A suppression that is of no use.
    /// @param caret  where in the line it stands, in bytes.
    void AddUnused(const Location& location, const std::string& line, std::uint32_t caret,
                   std::string message);

    /// Takes over what another one found.
    void Merge(Collector&& other);

    /// Ordered by file, place and rule.
    std::vector<Finding> Take();

private:
    Finding* AddAt(Severity severity, Rule rule, const SourceView& source, Range range,
                   std::string_view key, const std::vector<Request>& requests, std::string message);
    Finding* Add(Finding finding);

    const CheckOptions* options_;
    std::vector<Finding> findings_;
    std::multimap<std::uint64_t, std::size_t> known_;  // by a hash of what makes two the same
};

/// By file, place and rule.
void SortFindings(std::vector<Finding>& findings);

}  // namespace lm_check
