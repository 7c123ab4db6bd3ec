#include "memory.h"

#include <malloc.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace lm_bench {

namespace {

/// A line of the process's status, in bytes.
std::size_t Status(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(name + ':', 0) == 0) {
            return std::stoul(line.substr(name.size() + 1)) * 1024;
        }
    }
    throw std::runtime_error("no " + name + " in the process's status");
}

std::size_t Resident() {
    malloc_trim(0);
    return Status("VmRSS");
}

}  // namespace

MemoryUse MeasureMemory(const SystemType& type, const std::filesystem::path& directory,
                        const Workload& workload) {
    const std::size_t before = Resident();
    if (!(std::ofstream("/proc/self/clear_refs") << 5).flush()) {
        throw std::runtime_error("cannot reset the process's peak of memory");
    }
    const auto system = type.open(directory);
    system->AnswerRightly(workload.All().front());
    const std::size_t peak = Status("VmHWM");
    for (const Request& request : workload.All()) {
        system->AnswerRightly(request);
    }
    return {Resident() - before, peak - before};
}

}  // namespace lm_bench
