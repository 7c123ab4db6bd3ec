// Calls to the system that go wrong on purpose.
#pragma once

#include <cstddef>

namespace lm_test::faults {

/// What can go wrong: `operator new` and the process heap, or a question about, an opening or a
/// reading of a file.
enum class Source { Memory, Files };

/// Lets calls to `source` fail from now on, until `Stop`.
/// @param first   the calls before this one, counted from 1, go well.
/// @param lasts   whether all later calls fail, too.
void Start(Source source, std::size_t first, bool lasts);

/// @return whether a call failed.
bool Stop();

/// Blocks of memory that have not been given back.
std::size_t LiveBlocks();

/// Files that the process has open.
std::size_t OpenFiles();

/// Asked by each call to `source`: whether it is to fail.
bool Fails(Source source);

}  // namespace lm_test::faults
