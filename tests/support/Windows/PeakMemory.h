// How much memory the process has ever had.
#pragma once

#include <cstdint>

#include "System.h"

#include <psapi.h>

namespace lm_test {

/// In bytes.
inline std::int64_t PeakMemory() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<std::int64_t>(counters.PeakWorkingSetSize);
}

}  // namespace lm_test
