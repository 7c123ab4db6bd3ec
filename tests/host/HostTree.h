// A tree of files, opened by the kit, and what it has to say.
#pragma once

#include <mutex>
#include <string>
#include <utility>

#include "TempTree.h"
#include "localization_manager/host/host.h"

namespace lm_test {

namespace host = localization_manager::host;

/// Has an empty common source.
class HostTree : public testing::Test {
protected:
    HostTree() { files.Write("neutral/Locs/common.lt", ""); }

    host::TreeSettings Settings() {
        host::TreeSettings settings;
        settings.module = MODULE;
        settings.report = [this](std::uint32_t, std::string_view text) {
            const std::lock_guard<std::mutex> lock(mutex_);
            reports_.append(text).append("\n");
        };
        return settings;
    }

    host::Texts Open(const host::CultureList& cultures, host::TreeSettings settings) const {
        return {files.Root().string(), "main", cultures, std::move(settings)};
    }
    host::Texts Open(const host::CultureList& cultures) { return Open(cultures, Settings()); }

    /// All reports since the last call, a line each.
    std::string TakeReports() {
        const std::lock_guard<std::mutex> lock(mutex_);
        return std::exchange(reports_, "");
    }

    TempTree files;

private:
    std::mutex mutex_;
    std::string reports_;
};

}  // namespace lm_test
