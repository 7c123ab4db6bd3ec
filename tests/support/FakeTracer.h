// A host's tracer that remembers, and refuses or throws when told to.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "localization_manager/host/HostObject.h"
#include "qor/ITracer.h"

namespace lm_test {

class FakeTracer : public localization_manager::host::HostObject<qor::ITracer> {
public:
    using Pairs = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
    using Records = std::vector<std::pair<std::uint32_t, std::string>>;

    /// Levels that are declined, and with what: the code, and what the record is set to.
    std::map<std::uint32_t, std::pair<qor::result_t, char*>> declinedLevels;
    bool refusesEnlargement = false;
    bool throws = false;

    ~FakeTracer() override { EXPECT_TRUE(open_.empty()) << "records requested but never written"; }

    qor::result_t RequestRecord(std::uint32_t level, char** record,
                                std::uint32_t capacity) override {
        const std::lock_guard<std::mutex> lock(mutex_);
        requests_.emplace_back(level, capacity);
        if (throws) {
            throw std::runtime_error("tracer failed");
        }
        const bool enlarges = level == qor::trace_level::Enlarge;
        if (enlarges && refusesEnlargement) {
            return qor::rcOutOfMemory;
        }
        if (const auto declined = declinedLevels.find(level); declined != declinedLevels.end()) {
            *record = declined->second.second;
            return declined->second.first;
        }
        Buffer buffer = enlarges ? open_.at(*record) : Buffer{level, {}};
        if (enlarges) {
            open_.erase(*record);
        }
        buffer.bytes.resize(capacity);
        buffer.bytes.shrink_to_fit();
        *record = buffer.bytes.data();
        open_.emplace(*record, std::move(buffer));
        return qor::rcOk;
    }

    qor::result_t WriteRecord(char* buffer, std::uint32_t length) override {
        const std::lock_guard<std::mutex> lock(mutex_);
        records_.emplace_back(open_.at(buffer).level, std::string(buffer, length));
        open_.erase(buffer);
        return qor::rcOk;
    }

    /// The written records since the last call: level and text.
    Records TakeRecords() { return std::exchange(records_, {}); }

    /// The requests since the last call: level and capacity.
    Pairs TakeRequests() { return std::exchange(requests_, {}); }

private:
    struct Buffer {
        std::uint32_t level;
        std::vector<char> bytes;
    };

    std::mutex mutex_;
    std::map<char*, Buffer> open_;
    Records records_;
    Pairs requests_;
};

}  // namespace lm_test
