#include "Catalogues.h"

#include <utility>

namespace lm_bench {

std::filesystem::path Catalogues::File(const SystemType& type) {
    const std::lock_guard<std::recursive_mutex> lock(mutex_);
    std::filesystem::path file = type.file(directory_);
    if (!exists(file)) {
        type.write(directory_, workload_);
    }
    return file;
}

System& Catalogues::Opened(const SystemType& type) {
    const std::lock_guard<std::recursive_mutex> lock(mutex_);
    std::unique_ptr<System>& system = systems_[type.name];
    if (!system) {
        File(type);
        auto opened = type.open(directory_);
        for (const Request& request : workload_.All()) {
            opened->AnswerRightly(request);
        }
        system = std::move(opened);
    }
    return *system;
}

}  // namespace lm_bench
