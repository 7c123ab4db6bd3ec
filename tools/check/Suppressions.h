// Comments in sources that ask to ignore findings.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "check/Collector.h"
#include "check/Finding.h"
#include "check/TextFile.h"

namespace lm_check {

/// "; localize: ignore RULE[, RULE]... reason" above an entry or after it is about that entry;
/// above all entries, with an empty line below it, about what concerns the file as a whole.
class Suppressions {
public:
    struct Name {
        std::string text;
        std::optional<Rule> rule;  // empty when no rule is called so
        Location location;
        bool isUsed = false;
    };
    struct Comment {
        Location location;
        Range about;  // of the entry; empty for the whole file
        bool isAboutFile = false;
        std::vector<Name> names;
        bool isJudged = false;  // whether the file was judged completely
        std::string line;
    };

    /// Reads those of a file.
    /// @param isJudged  whether one that matches nothing is to be reported.
    void Read(const TextFile& file, bool isJudged);

    void Merge(Suppressions&& other);

    /// Removes what they are about from the findings, and adds those that match nothing.
    /// @return how many were removed.
    std::size_t Apply(std::vector<Finding>& findings, Collector& unused,
                      const CheckOptions& options);

private:
    class Index;

    static void AddUnused(const Comment& comment, const CheckOptions& options, Collector& unused);
    void Add(const TextFile& file, Range comment, Range about, bool isAboutFile, bool isJudged);

    std::vector<Comment> comments_;
};

}  // namespace lm_check
