// How exceptions become result codes at the boundary, and what is traced of them.
#include "qor/rtl/error_handling/current_exception.h"

#include <gtest/gtest.h>

#include "FakeTracer.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/error_handling/GetInterfaceException.h"
#include "qor/rtl/error_handling/contract_violations.h"

namespace {

using namespace qor;
using localization_manager::host::Make;

class PlainException : public ExceptionBase<PlainException, Exception> {
    using ExceptionBase::ExceptionBase;
};

class Wordless : public std::exception {
    const char* what() const noexcept override { return nullptr; }
};

template <class Thrown>
auto Throws(Thrown thrown) {
    return [thrown] { throw Thrown(thrown); };
}

TEST(CurrentExceptionTest, EveryKindHasItsCodeAndText) {
    using namespace code_contracts;
    const ContractLocation location = {"a", "f()", "f.cpp", 7};
    const struct {
        std::function<void()> raise;
        result_t code;
        std::string text;
    } cases[] = {
        {Throws(contract::RequireViolation("R", "f.cpp", 7, u"m")), rcRequireViolation,
         "R - m. At f.cpp(7) "},
        {Throws(contract::InvariantViolation("I", "f.cpp", 7, u"m")), rcInvariantViolation,
         "I - m. At f.cpp(7) "},
        {Throws(contract::EnsureViolation("E", "f.cpp", 7, u"m")), rcEnsureViolation,
         "E - m. At f.cpp(7) "},
        {Throws(ResultCodeException(rcNotFound, "f.cpp", 7, u"m")), rcNotFound,
         "ResultCodeException - m: 0x8000004c (Not found). At f.cpp(7) "},
        {Throws(ResultCodeException(rcOk, "f.cpp", 7, u"")), rcUnexpected,
         "ResultCodeException - 0x00000000 (No error). At f.cpp(7) "},
        {Throws(GetInterfaceException(0xA, rcLocked, "f.cpp", 7)), rcLocked,
         "GetInterfaceException - 0x8000004f (Locked): iid:0000000a. At f.cpp(7) "},
        {Throws(PlainException("P", "f.cpp", 7, u"m")), rcUnknownException, "P - m. At f.cpp(7) "},
        {Throws(std::bad_array_new_length()), rcOutOfMemory, "std::bad_array_new_length"},
        {Throws(std::length_error("too long")), rcOutOfMemory, "too long"},
        {Throws(Wordless()), rcUnknownException, "(null)"},
        {[&] { RequireNotNull(std::unique_ptr<int>(), location); }, rcUnknownException,
         "Contract Violation! Violated argument 'a' at f() at f.cpp:7Description: unexpected null "
         "pointer"},
    };
    const auto tracer = Make<lm_test::FakeTracer>();
    for (const auto& expected : cases) {
        for (const char* const prefix : {"prefix: ", static_cast<const char*>(nullptr)}) {
            tracer->throws = !tracer->throws;  // the code stands all the same
            try {
                expected.raise();
            } catch (...) {
                EXPECT_EQ(ResultFromCurrentException(), expected.code) << expected.text;
                EXPECT_EQ(ResultFromCurrentException(tracer.get(), prefix, 300), expected.code);
                tracer->throws = false;
                EXPECT_EQ(ResultFromCurrentException(tracer.get(), prefix, 300), expected.code);
            }
            const std::string traced = (prefix != nullptr ? prefix : "(null)") + expected.text;
            EXPECT_EQ(tracer->TakeRecords(), (lm_test::FakeTracer::Records{{300, traced}}));
        }
    }
}

TEST(CurrentExceptionTest, WhatIsNoStandardExceptionIsNotTraced) {
    const auto tracer = Make<lm_test::FakeTracer>();
    try {
        throw 42;
    } catch (...) {
        EXPECT_EQ(ResultFromCurrentException(tracer.get(), "prefix: ", 300), rcUnknownException);
    }
    EXPECT_TRUE(tracer->TakeRequests().empty());
}

}  // namespace
