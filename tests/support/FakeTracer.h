// A host's tracer that remembers, and refuses or throws when told to.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "localization_manager/host/HostObject.h"
#include "qor/ITracer.h"

namespace lm_test {

/// Has one record open at a time.
class FakeTracer : public localization_manager::host::HostObject<qor::ITracer> {
public:
    qor::result_t answer = qor::rcOk;  // to requests
    bool givesNull = false;            // whatever the answer
    bool refusesEnlargement = false;
    bool throws = false;
    std::string requests;  // "level:capacity " of each

    qor::result_t RequestRecord(std::uint32_t level, char** record,
                                std::uint32_t capacity) override {
        requests += std::to_string(level) + ':' + std::to_string(capacity) + ' ';
        if (throws) {
            throw std::runtime_error("tracer failed");
        }
        const bool enlarges = level == qor::trace_level::Enlarge;
        if (enlarges && refusesEnlargement) {
            return qor::rcOutOfMemory;
        }
        level_ = enlarges ? level_ : level;
        buffer_ = std::vector<char>(capacity);
        *record = givesNull ? nullptr : buffer_.data();
        return answer;
    }

    qor::result_t WriteRecord(char* buffer, std::uint32_t length) override {
        records_ += std::to_string(level_) + ' ' + std::string(buffer, length) + '\n';
        return qor::rcOk;
    }

    /// "level text\n" of the records since the last call.
    std::string TakeRecords() { return std::exchange(records_, ""); }

private:
    std::uint32_t level_ = 0;
    std::vector<char> buffer_;
    std::string records_;
};

}  // namespace lm_test
