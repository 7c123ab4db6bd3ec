// The keys of files, and what can be folded.
#pragma once

#include <string>

#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

Json DocumentSymbols(const Target& target);

/// The keys of all trees that hold a text, in any letter case.
Json WorkspaceSymbols(const Workspace& workspace, const std::string& query);

/// Entries and comments of several lines.
Json FoldingRanges(const Target& target);

}  // namespace lm_lsp
