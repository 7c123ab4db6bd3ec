// Brings the reports of localizers to the host.
#pragma once

#include <cstdint>
#include <utility>

#include "localization_manager/IErrorListener.h"
#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Report.h"
#include "qor/ITracer.h"

namespace localization_manager::host {

class ErrorListener : public HostObject<IErrorListener> {
public:
    explicit ErrorListener(Report report) : report_(std::move(report)) {}

    qor::result_t OnDebug(const qor::string8_t& text) override {
        return Forward(qor::trace_level::Debug, text);
    }
    qor::result_t OnInfo(const qor::string8_t& text) override {
        return Forward(qor::trace_level::Info, text);
    }
    qor::result_t OnError(const qor::string8_t& text) override {
        return Forward(qor::trace_level::Error, text);
    }

private:
    qor::result_t Forward(std::uint32_t level, const qor::string8_t& text) const {
        return AtCallback([&] {
            report_(level, text.view());
            return qor::rcOk;
        });
    }

    const Report report_;
};

}  // namespace localization_manager::host
