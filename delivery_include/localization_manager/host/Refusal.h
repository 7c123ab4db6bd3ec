// Tells of a name that the kit refused.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "localization_manager/host/text.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"

namespace localization_manager::host {

/// Writes to the tracer, where the manager's own reports go.
class Refusal {
public:
    /// @param tracer  null to tell nobody.
    explicit Refusal(qor::objptr_t<qor::ITracer> tracer) : tracer_(std::move(tracer)) {}

    /// @param what  what the name stands for.
    void Report(std::string_view what, std::u16string_view name) const {
        const std::string text = "localization manager error: refused " + std::string(what) + " '" +
                                 ToUtf8(name) + "', error: the name leads out of the tree";
        const auto size = static_cast<std::uint32_t>(text.size());
        char* record = nullptr;
        if (tracer_ &&
            tracer_->RequestRecord(qor::trace_level::Error, &record, size) == qor::rcOk &&
            record != nullptr) {
            text.copy(record, size);
            tracer_->WriteRecord(record, size);
        }
    }

private:
    qor::objptr_t<qor::ITracer> tracer_;
};

}  // namespace localization_manager::host
