// How much memory the process has ever had.
#pragma once

#include <sys/resource.h>

#include <cstdint>

namespace lm_test {

/// In bytes.
inline std::int64_t PeakMemory() {
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return std::int64_t{usage.ru_maxrss} * 1024;
}

}  // namespace lm_test
