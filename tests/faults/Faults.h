// Calls to the system that go wrong on purpose.
#pragma once

#include <cstddef>
#include <functional>

namespace lm_test::faults {

/// What can go wrong: `operator new` and the process heap, or a question about, an opening or a
/// reading of a file.
enum class Source { Memory, Files };

/// What happens at a call; the answer is whether the call fails.
using Deed = std::function<bool()>;

/// Lets `deed` happen at the calls to `source` from now on, until `Stop`.
/// @param first   the calls before this one, counted from 1, go well.
/// @param lasts   whether it happens at all later calls, too.
void Start(Source source, std::size_t first, bool lasts, Deed deed);

/// @return whether there was such a call.
bool Stop();

/// Blocks of memory that have not been given back.
std::size_t LiveBlocks();

}  // namespace lm_test::faults
