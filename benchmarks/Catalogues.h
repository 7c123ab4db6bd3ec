// Workloads, files and systems, each made when a benchmark first needs it.
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
    explicit Catalogues(std::filesystem::path directory) : directory_(std::move(directory)) {}

    const std::filesystem::path& Directory() const { return directory_; }
    const Workload& WorkloadOf(std::size_t size);

    /// The file of a system, written if need be.
    std::filesystem::path File(const SystemType& type, std::size_t size);

    /// A started system that has answered every request of the workload rightly.
    /// @throws std::runtime_error when it did not.
    System& Opened(const SystemType& type, std::size_t size);

private:
    std::filesystem::path directory_;
    std::recursive_mutex mutex_;
    std::map<std::size_t, Workload> workloads_;
    std::map<std::pair<std::string, std::size_t>, std::unique_ptr<System>> systems_;
};

}  // namespace lm_bench
