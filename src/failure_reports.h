// Telling the host of failures, without ever adding one.
#pragma once

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

#include "localization_manager/IErrorListener.h"
#include "qor/IAllocator.h"
#include "qor/ITracer.h"
#include "qor/rtl/error_handling/display_text.h"
#include "qor/rtl/error_handling/trace.h"

namespace localization_manager {

/// The source file that the messages of the manager and the localizers print; the lines stand at
/// the calls.
inline constexpr const char* kServiceSource = "source\\LocalizationManager_copy";

inline const char* WhatOf(const std::exception& failure) noexcept {
    return qor::OrNull(failure.what());
}

/// The parts of a report as one text. It is the only copy: a mistake in a file is shown with its
/// line, which may be as long as the file.
inline qor::string8_t JoinReport(qor::IAllocator& allocator,
                                 std::initializer_list<std::string_view> parts) {
    qor::string8_t report{qor::Allocator<char>(&allocator)};
    for (const std::string_view part : parts) {
        report.append(part);
    }
    return report;
}

/// Writes a record at the error level of the tracer, which may be null. A text that cannot be made,
/// for want of memory, is dropped, and what the tracer throws is swallowed: the result code that
/// the caller returns says that something failed.
template <class MakeText>
void TraceError(qor::ITracer* tracer, MakeText makeText) noexcept {
    qor::TraceNoThrow(tracer, qor::trace_level::Error, makeText);
}

/// The same for the error listener, which takes a `qor::string8_t`.
template <class MakeText>
void ReportError(IErrorListener& errorListener, MakeText makeText) noexcept {
    try {
        errorListener.OnError(makeText());
    } catch (...) {  // the result code stands
    }
}

}  // namespace localization_manager
