// Result codes: their messages, and how the platform's errors become codes.
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "qor/rtl/error_handling/result_messages.h"

namespace {

using namespace qor;

TEST(ResultCodesTest, MessagesComeFromTheTableOfTheFamily) {
    const std::map<std::uint32_t, const char16_t*> cases = {
        {0, u"No error"},
        {2, u"Unknown result code"},
        {0x80000001, u"Interface not supported"},
        {0x80000047, u"Unknown result code"},
        {0x80000074, u"Unknown result code"},
        {0x8001010A, u"Unknown platform result code"},
        {0x80010110, u"Cannot open an anonymous level security token"},
        {0x00010102, u"Unknown platform result code"},
        {0x80070005, u"Unknown result code"}};
    for (const auto& [code, message] : cases) {
        EXPECT_EQ(GetResultCodeMessage(static_cast<result_t>(code)), string16_t(message)) << code;
    }
}

TEST(ResultCodesTest, PlatformErrorsMapToCodes) {
    using Errors = std::vector<std::uint32_t>;
    const std::vector<std::pair<result_t, Errors>> cases = {
        {rcOk, {0, 0x10000, 0x12345, 0x7FFFFFFF, 0x80070000}},
        {rcFileNotFound, {2, 0x80070002, 0xF0070002}},
        {rcAccessDenied, {5, 0x80070005}},
        {rcNotSupported, {1, 50}},
        {rcPathNotFound, {3, 53, 267}},
        {rcSharingViolation, {32, 33}},
        {rcAlreadyExists, {80, 183}},
        {rcInvalidArgument, {87, 160}},
        {rcBufferTooSmall, {111, 122, 234}},
        {detail::ResultCode(0x8007270F), {9999}},
        {detail::ResultCode(0x8007FFFF), {0xFFFF, 0x8007FFFF}},
        {rcUnspecifiedPlatformError, {0x80000000, 0x80040005, 0x80170002, 0xFFFFFFFF}}};
    for (const auto& [code, errors] : cases) {
        for (const std::uint32_t error : errors) {
            EXPECT_EQ(ResultFromPlatformError(error), code) << error;
        }
    }
    const Errors alone = {6,   8,   21,  24,   31,   112,  123,  126,  127,
                          393, 637, 995, 1168, 1347, 1413, 1450, 1460, 14001};
    const Errors codes = {0x80010101, 0x80000041, 0x80000063, 0x8000005C, 0x8000004B, 0x80000062,
                          0x80010109, 0x80010112, 0x80010107, 0x80010114, 0x80010113, 0x80000051,
                          0x8000004C, 0x80010110, 0x8000005E, 0x8000006C, 0x80000221, 0x80010108};
    for (std::size_t i = 0; i < alone.size(); ++i) {
        EXPECT_EQ(ResultFromPlatformError(alone[i]), static_cast<result_t>(codes[i])) << alone[i];
    }
}

}  // namespace
