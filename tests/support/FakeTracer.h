// A host's tracer that remembers, and refuses or throws when told to.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Unordered.h"
#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "qor/ITracer.h"

namespace lm_test {

/// Has one record open at a time.
class FakeTracer : public Unordered<localization_manager::host::HostObject<qor::ITracer>> {
public:
    bool refuses = false;    // with a success code other than `rcOk`
    bool givesNull = false;  // whatever the answer
    bool refusesEnlargement = false;
    bool throws = false;
    std::string requests;  // "level:capacity " of each

    ~FakeTracer() override { EXPECT_FALSE(isOpen_) << "a record that was never written"; }

    qor::result_t RequestRecord(std::uint32_t level, char** record,
                                std::uint32_t capacity) override {
        requests += std::to_string(level) + ':' + std::to_string(capacity) + ' ';
        if (throws) {
            return localization_manager::host::AtCallback(
                []() -> qor::result_t { throw std::runtime_error("tracer failed"); });
        }
        const bool enlarges = level == qor::trace_level::Enlarge;
        if (enlarges && refusesEnlargement) {
            return qor::rcOutOfMemory;
        }
        level_ = enlarges ? level_ : level;
        buffer_ = std::vector<char>(capacity);
        *record = givesNull ? nullptr : buffer_.data();
        isOpen_ = !givesNull && !refuses;
        return refuses ? qor::rcFalse : qor::rcOk;
    }

    qor::result_t WriteRecord(char* buffer, std::uint32_t length) override {
        records_ += std::to_string(level_) + ' ' + std::string(buffer, length) + '\n';
        isOpen_ = false;
        return qor::rcOk;
    }

    /// "level text\n" of the records since the last call.
    std::string TakeRecords() { return std::exchange(records_, ""); }

private:
    bool isOpen_ = false;
    std::uint32_t level_ = 0;
    std::vector<char> buffer_;
    std::string records_;
};

}  // namespace lm_test
