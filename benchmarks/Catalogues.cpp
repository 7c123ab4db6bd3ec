#include "Catalogues.h"

#include <utility>

namespace lm_bench {

const Workload& Catalogues::WorkloadOf(std::size_t size) {
    const std::lock_guard<std::recursive_mutex> lock(mutex_);
    return workloads_.try_emplace(size, size).first->second;
}

std::filesystem::path Catalogues::File(const SystemType& type, std::size_t size) {
    const std::lock_guard<std::recursive_mutex> lock(mutex_);
    std::filesystem::path file = type.file(directory_, size);
    if (!exists(file)) {
        type.write(directory_, WorkloadOf(size));
    }
    return file;
}

System& Catalogues::Opened(const SystemType& type, std::size_t size) {
    const std::lock_guard<std::recursive_mutex> lock(mutex_);
    std::unique_ptr<System>& system = systems_[{type.name, size}];
    if (!system) {
        File(type, size);
        auto opened = type.open(directory_, size);
        for (const Request& request : WorkloadOf(size).All()) {
            opened->AnswerRightly(request);
        }
        system = std::move(opened);
    }
    return *system;
}

}  // namespace lm_bench
