// Writes the page.
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "check/Report.h"
#include "tree/Tree.h"

namespace lm_report {

/// What the module answers to a request.
struct Answer {
    bool isGiven = false;
    std::string text;  // or why there is none. UTF-8
};

/// The numbers that each text is shown for, where it depends on one.
inline const std::vector<int>& ShownNumbers() {
    static const std::vector<int> numbers = {0, 1, 2, 5, 21};
    return numbers;
}

struct Page {
    const lm_tree::Tree& tree;
    const lm_check::Report& report;
    std::string title;
    std::string producer;  // the tool and its version

    /// Asks for a text: of a culture and a scope by their numbers in the report. All keys of a scope
    /// are asked for before those of the next.
    std::function<Answer(std::size_t culture, std::size_t scope, const std::string& key,
                         int number)>
        ask;

    /// The path of a finding, as people know it.
    std::function<std::string(const lm_check::Location& location)> path;
};

/// One file that needs nothing else: cultures by scopes, findings, and each text in all cultures side by
/// side. With scripts it filters; without it can be read all the same.
void WritePage(std::ostream& output, const Page& page);

}  // namespace lm_report
