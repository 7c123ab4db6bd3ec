// The systems over one workload and their files, each made when a benchmark first needs it.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "System.h"

namespace lm_bench {

/// Threads may ask at once.
class Catalogues {
public:
    /// @param directory  where the files are written.
    Catalogues(std::filesystem::path directory, std::size_t size)
        : directory_(std::move(directory)), workload_(size) {}

    const std::filesystem::path& directory() const { return directory_; }
    const Workload& workload() const { return workload_; }

    /// The file of a system, written if need be.
    std::filesystem::path File(const SystemType& type);

    /// A started system that has answered every request of the workload rightly.
    /// @throws std::runtime_error when it did not.
    System& Opened(const SystemType& type);

private:
    std::filesystem::path directory_;
    std::recursive_mutex mutex_;
    Workload workload_;
    std::map<std::string, std::unique_ptr<System>> systems_;
};

}  // namespace lm_bench
