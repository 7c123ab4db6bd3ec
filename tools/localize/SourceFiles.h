// The files that sources of texts are read from.
#pragma once

#include <optional>
#include <string>

#include "ModuleReports.h"
#include "RequestSettings.h"
#include "tree/CultureName.h"
#include "tree/Tree.h"

namespace localize {

class SourceFiles {
public:
    /// @param reports  must outlive the object.
    SourceFiles(const RequestSettings& settings, const ModuleReports& reports);

    /// A source with its file, and who answers when it is not the culture's own directory.
    std::string Describe(const std::string& source) const;

private:
    const ModuleReports& reports_;
    std::optional<lm_tree::Tree> tree_;  // empty when no text is the tree's
    lm_tree::CultureName culture_;
};

}  // namespace localize
