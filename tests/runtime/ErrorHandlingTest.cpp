// What leaves the component when something fails: result codes, their messages, trace records.
#include <gtest/gtest.h>

#include "FakeTracer.h"
#include "qor/rtl/error_handling/GetInterfaceException.h"
#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/error_handling/contract_violations.h"
#include "qor/rtl/error_handling/current_exception.h"
#include "qor/rtl/error_handling/result_messages.h"
#include "qor/rtl/error_handling/trace.h"

namespace {

using namespace qor;

class ErrorHandlingTest : public testing::Test {
protected:
    const objptr_t<lm_test::FakeTracer> tracer_ =
        localization_manager::host::Make<lm_test::FakeTracer>();
};

TEST_F(ErrorHandlingTest, PlatformErrorsMapToCodes) {
    const std::pair<result_t, std::vector<std::uint32_t>> cases[] = {
        {rcOk, {0, 0x10000, 0x12345, 0x7FFFFFFF, 0x80070000}},
        {rcFileNotFound, {2, 0x80070002, 0xF0070002}},
        {rcPathNotFound, {3, 53, 267}},
        {rcSharingViolation, {32, 33}},
        {rcInvalidArgument, {87, 160}},
        {rcBufferTooSmall, {111, 122, 234}},
        {detail::ResultCode(0x80070083), {131}},
        {detail::ResultCode(0x8007FFFF), {0xFFFF, 0x8007FFFF}},
        {detail::ResultCode(0x80010108), {14001}},
        {rcUnspecifiedPlatformError, {0x80000000, 0x80040005, 0x80170002, 0xFFFFFFFF}}};
    for (const auto& [code, errors] : cases) {
        for (const std::uint32_t error : errors) {
            EXPECT_EQ(ResultFromPlatformError(error), code) << error;
        }
    }
}

class PlainException : public ExceptionBase<PlainException, Exception> {
    using ExceptionBase::ExceptionBase;
};

TEST_F(ErrorHandlingTest, EveryExceptionHasItsCodeAndRecordAlsoWhenTheTracerThrows) {
    const struct {
        void (*raise)();
        result_t code;
        const char* text;  // null for no record
    } cases[] = {
        {[] { throw contract::RequireViolation("R", "f", 7, u"m"); }, rcRequireViolation,
         "R - m. At f(7) "},
        {[] { throw contract::InvariantViolation("I", "f", 7, u"m"); }, rcInvariantViolation,
         "I - m. At f(7) "},
        {[] { throw contract::EnsureViolation("E", "f", 7, u"m"); }, rcEnsureViolation,
         "E - m. At f(7) "},
        {[] { throw ResultCodeException(rcOk, "f", 7, u""); }, rcUnexpected,
         "ResultCodeException - 0x00000000 (No error). At f(7) "},
        {[] { throw GetInterfaceException(0xA, rcLocked, "f", 7); }, rcLocked,
         "GetInterfaceException - 0x8000004f (Locked): iid:0000000a. At f(7) "},
        {[] { throw PlainException("P", "f", 7, u""); }, rcUnknownException, "P - . At f(7) "},
        {[] { throw std::bad_array_new_length(); }, rcOutOfMemory, "std::bad_array_new_length"},
        {[] { throw std::length_error("long"); }, rcOutOfMemory, "long"},
        {[] { throw std::logic_error("other"); }, rcUnknownException, "other"},
        {[] { throw 42; }, rcUnknownException, nullptr},
    };
    for (const auto& [raise, code, text] : cases) {
        for (const bool throws : {true, false}) {
            tracer_->throws = throws;
            try {
                raise();
            } catch (...) {
                EXPECT_EQ(ResultFromCurrentException(tracer_.get(), nullptr, 300), code);
                EXPECT_EQ(ResultFromCurrentException(tracer_.get(), "prefix: ", 500), code);
            }
        }
        std::ostringstream records;
        if (text != nullptr) {
            records << "300 (null)" << text << "\n500 prefix: " << text << '\n';
        }
        EXPECT_EQ(tracer_->TakeRecords(), records.str());
    }
}

TEST_F(ErrorHandlingTest, ARecordStartsWith512BytesAndIsEnlargedOnceOrLosesItsText) {
    const struct {
        std::size_t size;
        bool refusesEnlargement;
        const char* requests;
        std::size_t written;
    } cases[] = {{512, false, "300:512 ", 512},
                 {513, false, "300:512 1000:1024 ", 513},
                 {1025, false, "300:512 1000:1025 ", 1025},
                 {513, true, "300:512 1000:1024 ", 0}};
    for (const auto& expected : cases) {
        tracer_->refusesEnlargement = expected.refusesEnlargement;
        Trace(tracer_.get(), trace_level::Error, std::string(expected.size, 'x'));
        EXPECT_EQ(tracer_->TakeRecords(), "300 " + std::string(expected.written, 'x') + '\n');
        EXPECT_EQ(std::exchange(tracer_->requests, ""), expected.requests);
    }
}

TEST_F(ErrorHandlingTest, WithoutAGrantedRecordNothingIsWritten) {
    tracer_->answer = rcFalse;
    Trace(tracer_.get(), trace_level::Error, "x");
    tracer_->answer = rcOk;
    tracer_->givesNull = true;
    Trace(tracer_.get(), trace_level::Error, "x");
    tracer_->throws = true;
    TraceNoThrow(tracer_.get(), trace_level::Error, "x");
    EXPECT_EQ(tracer_->TakeRecords(), "");
}

}  // namespace
