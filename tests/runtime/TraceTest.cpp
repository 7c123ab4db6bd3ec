// The protocol by which records are written to a host's tracer.
#include "qor/rtl/error_handling/trace.h"

#include <gtest/gtest.h>

#include "FakeTracer.h"

namespace {

using namespace qor;
using lm_test::FakeTracer;
using localization_manager::host::Make;

TEST(TraceTest, ARecordStartsWith512BytesAndIsEnlargedOnce) {
    const std::map<std::size_t, FakeTracer::Pairs> requests = {{0, {{300, 512}}},
                                                               {512, {{300, 512}}},
                                                               {513, {{300, 512}, {1000, 1024}}},
                                                               {1025, {{300, 512}, {1000, 1025}}}};
    const auto tracer = Make<FakeTracer>();
    for (const auto& [size, expected] : requests) {
        const std::string text(size, 'x');
        Trace(tracer.get(), trace_level::Error, text);
        EXPECT_EQ(tracer->TakeRecords(), (FakeTracer::Records{{300, text}}));
        EXPECT_EQ(tracer->TakeRequests(), expected) << size;
    }
}

TEST(TraceTest, ATextThatDoesNotFitIsDroppedWhenEnlargementIsRefused) {
    const auto tracer = Make<FakeTracer>();
    tracer->refusesEnlargement = true;
    Trace(tracer.get(), trace_level::Debug, std::string(513, 'x'));
    EXPECT_EQ(tracer->TakeRecords(), (FakeTracer::Records{{700, ""}}));
}

TEST(TraceTest, WithoutAGrantedRecordNothingIsWritten) {
    Trace(nullptr, trace_level::Error, "x");
    const auto tracer = Make<FakeTracer>();
    char buffer[512];
    tracer->declinedLevels = {
        {300, {rcFalse, buffer}}, {500, {rcOk, nullptr}}, {700, {rcLocked, nullptr}}};
    for (const std::uint32_t level : {300U, 500U, 700U}) {
        Trace(tracer.get(), level, "x");
    }
    EXPECT_TRUE(tracer->TakeRecords().empty());
}

TEST(TraceTest, OnlyTheNoThrowFormSwallowsWhatTheTracerThrows) {
    const auto tracer = Make<FakeTracer>();
    tracer->throws = true;
    TraceNoThrow(tracer.get(), trace_level::Error, "x");
    EXPECT_THROW(Trace(tracer.get(), trace_level::Error, "x"), std::runtime_error);
}

}  // namespace
