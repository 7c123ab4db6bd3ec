#include "FindingPaths.h"

#include <system_error>

#include "tree/path_text.h"

namespace localize {

namespace fs = std::filesystem;

std::string FindingPaths::Shown(const lm_check::Location& location) const {
    return location.isInTree
               ? lm_tree::Utf8Of(tree_.FullPath(location.side, location.path).lexically_normal())
               : location.path;
}

std::string FindingPaths::Relative(const lm_check::Location& location) const {
    std::string shown = Shown(location);
    std::error_code error;
    const fs::path here = fs::current_path(error);
    if (error) {
        return shown;
    }
    const std::string relative = lm_tree::Utf8Of(
        fs::absolute(lm_tree::PathOf(shown)).lexically_normal().lexically_relative(here));
    return relative.empty() || relative.compare(0, 2, "..") == 0 ? shown : relative;
}

}  // namespace localize
