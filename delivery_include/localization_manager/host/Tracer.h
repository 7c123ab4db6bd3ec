// Brings the module's trace records to a report.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Report.h"
#include "qor/ITracer.h"

namespace localization_manager::host {

class Tracer : public HostObject<qor::ITracer> {
public:
    /// @param report  hears the records; an empty one declines all of them.
    /// @param lowest, highest  the levels to hear, the bounds included; a lower one is more severe.
    explicit Tracer(Report report, std::uint32_t lowest = 0,
                    std::uint32_t highest = qor::trace_level::Debug)
        : report_(std::move(report)), lowest_(lowest), highest_(highest) {}

    qor::result_t RequestRecord(std::uint32_t level, char** record,
                                std::uint32_t capacity) override {
        const bool isNew = level != qor::trace_level::Enlarge;
        if (isNew && (!report_ || level < lowest_ || level > highest_)) {
            return qor::rcFalse;
        }
        void* const memory =
            std::realloc(isNew ? nullptr : HeaderOf(*record), sizeof(Header) + capacity);
        if (memory == nullptr) {
            return qor::rcOutOfMemory;  // a record to enlarge stays as it is
        }
        auto* const header = static_cast<Header*>(memory);
        if (isNew) {
            header->level = level;
        }
        *record = reinterpret_cast<char*>(header + 1);
        return qor::rcOk;
    }

    qor::result_t WriteRecord(char* buffer, std::uint32_t length) override {
        const std::unique_ptr<Header, decltype(&std::free)> header(HeaderOf(buffer), &std::free);
        return AtCallback([&] {
            report_(header->level, std::string_view(buffer, length));
            return qor::rcOk;
        });
    }

private:
    /// Stands in front of the text, since the level is not told again when the record is written.
    struct Header {
        std::uint32_t level;
    };

    static Header* HeaderOf(char* text) { return reinterpret_cast<Header*>(text) - 1; }

    const Report report_;
    const std::uint32_t lowest_;
    const std::uint32_t highest_;
};

}  // namespace localization_manager::host
