// Telling the host of failures, without ever adding one.
#pragma once

#include <exception>
#include <string>

#include "localization_manager/IErrorListener.h"
#include "qor/ITracer.h"
#include "qor/rtl/error_handling/trace.h"
#include "qor/rtl/text/Cast.h"

namespace localization_manager {

/// The source file that the messages of the manager and the localizers print; the lines stand at
/// the calls.
inline constexpr const char* kServiceSource = "source\\LocalizationManager_copy";

inline const char* WhatOf(const std::exception& failure) noexcept {
    const char* const what = failure.what();
    return what != nullptr ? what : "(null)";
}

/// Writes a record at the error level of the tracer, which may be null. A text that cannot be made,
/// for want of memory, is dropped, and what the tracer throws is swallowed: the result code that
/// the caller returns says that something failed.
template <class MakeText>
void TraceError(qor::ITracer* tracer, MakeText makeText) noexcept {
    try {
        qor::Trace(tracer, qor::trace_level::Error, makeText());
    } catch (...) {  // the result code stands
    }
}

/// The same for the error listener.
template <class MakeText>
void ReportError(IErrorListener& errorListener, MakeText makeText) noexcept {
    try {
        errorListener.OnError(qor::text::Cast<qor::string8_t>(makeText()));
    } catch (...) {  // the result code stands
    }
}

}  // namespace localization_manager
