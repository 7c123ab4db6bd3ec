#include "ErrorListener.h"

#include "qor/rtl/error_handling/trace.h"

namespace localization_manager {

qor::result_t ErrorListener::OnDebug(const qor::string8_t& text) {
    qor::TraceNoThrow(GetTracer(), qor::trace_level::Debug, [&] { return text.view(); });
    return qor::rcOk;
}

qor::result_t ErrorListener::OnInfo(const qor::string8_t& text) {
    qor::TraceNoThrow(GetTracer(), qor::trace_level::Info, [&] { return text.view(); });
    return qor::rcOk;
}

qor::result_t ErrorListener::OnError(const qor::string8_t& text) {
    qor::TraceNoThrow(GetTracer(), qor::trace_level::Error, [&] { return text.view(); });
    return qor::rcOk;
}

}  // namespace localization_manager
