// The paths of findings, as they are printed.
#pragma once

#include <filesystem>
#include <string>

#include "check/Finding.h"
#include "tree/Tree.h"

namespace localize {

class FindingPaths {
public:
    explicit FindingPaths(const lm_tree::Tree& tree) : tree_(tree) {}

    /// As the tree was given, so that an editor or shell finds the file.
    std::string Shown(const lm_check::Location& location) const;

    /// From the current directory on, where the file lies below it; else as it is shown.
    std::string Relative(const lm_check::Location& location) const;

private:
    const lm_tree::Tree& tree_;
};

}  // namespace localize
