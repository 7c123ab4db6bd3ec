// Memory that a system takes, measured in a process of its own.
#pragma once

#include "System.h"

namespace lm_bench {

struct MemoryUse {
    std::size_t held;
    std::size_t peak;
};

/// Counts resident memory of the process, pages of mapped files included. The peak is that of
/// starting up to the first answer. Held is what is left once every text was asked for, since some
/// systems load a text only then, and the heap's free pages were given back.
MemoryUse MeasureMemory(const SystemType& type, const std::filesystem::path& directory,
                        const Workload& workload);

}  // namespace lm_bench
