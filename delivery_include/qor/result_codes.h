// The result codes that every operation of a component interface returns.
#pragma once

#include <cstdint>

namespace qor {

/// Signed 32-bit result: 0 or more is success, a negative value is failure. Bits 16 to 30 select a
/// family: 0 the framework, 1 the platform, 7 an operating-system error number in the low 16 bits.
using result_t = std::int32_t;

constexpr bool Failed(result_t code) noexcept {
    return code < 0;
}

namespace detail {
constexpr result_t ResultCode(std::uint32_t bits) noexcept {
    return static_cast<result_t>(bits);
}
}  // namespace detail

// Framework family.
inline constexpr result_t rcOk = 0;
inline constexpr result_t rcFalse = 1;
inline constexpr result_t rcInterfaceNotSupported = detail::ResultCode(0x80000001);
inline constexpr result_t rcUnexpected = detail::ResultCode(0x80000040);
inline constexpr result_t rcOutOfMemory = detail::ResultCode(0x80000041);
inline constexpr result_t rcNotSupported = detail::ResultCode(0x80000042);
inline constexpr result_t rcNotImplemented = detail::ResultCode(0x80000043);
inline constexpr result_t rcBufferTooSmall = detail::ResultCode(0x80000044);
inline constexpr result_t rcAccessDenied = detail::ResultCode(0x80000045);
inline constexpr result_t rcInvalidArgument = detail::ResultCode(0x80000046);
inline constexpr result_t rcNotMatched = detail::ResultCode(0x8000004A);
inline constexpr result_t rcUnspecifiedError = detail::ResultCode(0x8000004B);
inline constexpr result_t rcNotFound = detail::ResultCode(0x8000004C);
inline constexpr result_t rcFound = detail::ResultCode(0x8000004D);
inline constexpr result_t rcLocked = detail::ResultCode(0x8000004F);
inline constexpr result_t rcNotLocked = detail::ResultCode(0x80000050);
inline constexpr result_t rcOperationCancelled = detail::ResultCode(0x80000051);
inline constexpr result_t rcMethodNotFound = detail::ResultCode(0x80000057);
inline constexpr result_t rcStackIsEmpty = detail::ResultCode(0x80000058);
inline constexpr result_t rcMediaError = detail::ResultCode(0x80000059);
inline constexpr result_t rcInvalidSignature = detail::ResultCode(0x8000005A);
inline constexpr result_t rcInvalidVersion = detail::ResultCode(0x8000005B);
inline constexpr result_t rcInvalidSize = detail::ResultCode(0x8000005C);
inline constexpr result_t rcInvalidType = detail::ResultCode(0x8000005D);
inline constexpr result_t rcInvalidIndex = detail::ResultCode(0x8000005E);
inline constexpr result_t rcOutOfSpace = detail::ResultCode(0x80000062);
inline constexpr result_t rcNotReady = detail::ResultCode(0x80000063);
inline constexpr result_t rcLessThan = detail::ResultCode(0x80000064);
inline constexpr result_t rcMoreThan = detail::ResultCode(0x80000065);
inline constexpr result_t rcProhibited = detail::ResultCode(0x80000066);
inline constexpr result_t rcAlreadyDone = detail::ResultCode(0x80000067);
inline constexpr result_t rcNeedReboot = detail::ResultCode(0x80000068);
inline constexpr result_t rcBasesCorrupted = detail::ResultCode(0x80000069);
inline constexpr result_t rcInvalidState = detail::ResultCode(0x8000006A);
inline constexpr result_t rcNotInitialized = detail::ResultCode(0x8000006B);
inline constexpr result_t rcInsufficientResources = detail::ResultCode(0x8000006C);
inline constexpr result_t rcInvalidResult = detail::ResultCode(0x80000071);
inline constexpr result_t rcUnknownException = detail::ResultCode(0x80000072);
inline constexpr result_t rcRequireViolation = detail::ResultCode(0x80000073);
inline constexpr result_t rcInvariantViolation = detail::ResultCode(0x80000074);
inline constexpr result_t rcEnsureViolation = detail::ResultCode(0x80000075);
inline constexpr result_t rcMetaInformationNotFound = detail::ResultCode(0x80000076);
inline constexpr result_t rcClassNotFound = detail::ResultCode(0x80000100);
inline constexpr result_t rcSettingsAreRequired = detail::ResultCode(0x80000101);
inline constexpr result_t rcUnexpectedSettings = detail::ResultCode(0x80000102);
inline constexpr result_t rcWrongSettingsType = detail::ResultCode(0x80000103);
inline constexpr result_t rcPropertyNotFound = detail::ResultCode(0x80000180);
inline constexpr result_t rcOperationTimeout = detail::ResultCode(0x80000221);

// Platform family.
inline constexpr result_t rcUnspecifiedPlatformError = detail::ResultCode(0x80010100);
inline constexpr result_t rcInvalidHandle = detail::ResultCode(0x80010101);
inline constexpr result_t rcFileNotFound = detail::ResultCode(0x80010102);
inline constexpr result_t rcPathNotFound = detail::ResultCode(0x80010103);
inline constexpr result_t rcSharingViolation = detail::ResultCode(0x80010104);
inline constexpr result_t rcAlreadyExists = detail::ResultCode(0x80010105);
inline constexpr result_t rcWaitAbandoned = detail::ResultCode(0x80010106);
inline constexpr result_t rcSymbolNotFound = detail::ResultCode(0x80010107);
inline constexpr result_t rcSxsIsIncorrect = detail::ResultCode(0x80010108);
inline constexpr result_t rcInvalidPathName = detail::ResultCode(0x80010109);
inline constexpr result_t rcCannotOpenAnonymousToken = detail::ResultCode(0x80010110);
inline constexpr result_t rcPasswordIsInvalid = detail::ResultCode(0x80010111);
inline constexpr result_t rcModuleNotFound = detail::ResultCode(0x80010112);
inline constexpr result_t rcSystemImageBadSignature = detail::ResultCode(0x80010113);
inline constexpr result_t rcCloudFileRequestAborted = detail::ResultCode(0x80010114);
inline constexpr result_t rcMemoryMappingFailed = detail::ResultCode(0x80010115);

}  // namespace qor
