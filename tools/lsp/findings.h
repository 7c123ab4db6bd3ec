// What is wrong, as the check finds it and as editors take it.
#pragma once

#include <cstddef>
#include <filesystem>

#include "check/Report.h"
#include "check/TranslationLock.h"
#include "lsp/Json.h"
#include "lsp/Workspace.h"

namespace lm_lsp {

/// Findings of a file that an editor is told of: more than anybody reads, but a new file of a large tree
/// lacks all of its keys.
inline constexpr std::size_t kMostOfFile = 500;

lm_check::TranslationLock LockOf(const Snapshot& snapshot);

/// The options of the settings for one file and what it answers; hold no longer than the snapshot.
lm_check::CheckOptions OptionsFor(const Snapshot& snapshot, lm_tree::FileId file);

/// What is wrong with one file and what it answers; the tree is not judged as a whole.
/// @throws std::invalid_argument for a file whose scope the reference does not have.
lm_check::Report JudgeFile(const Snapshot& snapshot, lm_tree::FileId file);

std::filesystem::path PathOf(const Snapshot& snapshot, const lm_check::Location& location);

/// A finding as the protocol has it.
Json DiagnosticOf(const Workspace& workspace, const Snapshot& snapshot,
                  const lm_check::Finding& finding);

}  // namespace lm_lsp
