// What leaves the component when something fails: result codes, their messages, trace records.
#include <gtest/gtest.h>

#include "FakeTracer.h"
#include "qor/rtl/error_handling/GetInterfaceException.h"
#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/error_handling/contract_violations.h"
#include "qor/rtl/error_handling/number_text.h"
#include "qor/rtl/error_handling/result_from_current_exception.h"
#include "qor/rtl/error_handling/trace.h"

namespace {

using namespace qor;
using lm_test::FakeTracer;

constexpr auto kNoRecord = std::string::npos;

class ErrorHandlingTest : public testing::Test {
protected:
    const objptr_t<FakeTracer> tracer_ = localization_manager::host::Make<FakeTracer>();
};

class PlainException : public ExceptionBase<PlainException, Exception> {
    using ExceptionBase::ExceptionBase;
};

ResultCodeException Chain() {
    auto innermost = std::make_unique<GetInterfaceException>(0xA, rcLocked, "qor/c.h", 113);
    auto middle = std::make_unique<ResultCodeException>(rcNotFound, "b.cpp", 20, u"\u0416",
                                                        std::move(innermost));
    return ResultCodeException(rcInvalidArgument, "a.cpp", 1, u"x", std::move(middle));
}

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
        {[] { Chain().Clone()->Rethrow(); }, rcInvalidArgument,
         "ResultCodeException - x: 0x80000046 (Invalid argument). At a.cpp(1) "
         ";<Exception display text conversion error>"
         ";GetInterfaceException - 0x8000004f (Locked): iid:0000000a. At qor/c.h(113) "},
        {[] { throw PlainException("P", "f", 7, u""); }, rcUnknownException, "P - . At f(7) "},
        {[] { throw std::bad_array_new_length(); }, rcOutOfMemory, "std::bad_array_new_length"},
        {[] { throw BadAllocation(); }, rcOutOfMemory, "bad allocation"},
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

TEST(NumberTextTest, PrefixAndPaddingStandWhereTheFormatPutsThem) {
    string16_t text;
    const auto append = [&text](std::u16string_view prefix, unsigned base, int alignment) {
        AppendNumber(text, 255, prefix, {6, base, -1, alignment, U'.', true});
    };
    append(u"", 16, 1);
    append(u"", 16, 0);
    append(u"", 8, -1);
    append(u"#", 36, 1);
    EXPECT_EQ(text.view(), u"..0xff0x..ff0377.....#73");
}

TEST_F(ErrorHandlingTest, ARecordStartsWith512BytesAndIsEnlargedOnceOrLosesItsText) {
    const struct {
        std::size_t size;
        bool FakeTracer::*refusal;
        const char* requests;
        std::size_t written;
    } cases[] = {{512, nullptr, "300:512 ", 512},
                 {513, nullptr, "300:512 1000:1024 ", 513},
                 {1025, nullptr, "300:512 1000:1025 ", 1025},
                 {513, &FakeTracer::refusesEnlargement, "300:512 1000:1024 ", 0},
                 {1, &FakeTracer::refuses, "300:512 ", kNoRecord},
                 {1, &FakeTracer::givesNull, "300:512 ", kNoRecord}};
    for (const auto& expected : cases) {
        if (expected.refusal != nullptr) {
            tracer_.get()->*expected.refusal = true;
        }
        Trace(tracer_.get(), trace_level::Error, std::string(expected.size, 'x'));
        EXPECT_EQ(std::exchange(tracer_->requests, ""), expected.requests);
        EXPECT_EQ(tracer_->TakeRecords(), expected.written == kNoRecord
                                              ? ""
                                              : "300 " + std::string(expected.written, 'x') + '\n');
    }
}

}  // namespace
