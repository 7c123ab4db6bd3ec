#include "qor/rtl/error_handling/result_from_platform_error.h"

#include <algorithm>
#include <iterator>

namespace qor {

namespace {

struct Mapping {
    std::uint32_t error;
    result_t code;
};

constexpr Mapping kMappings[] = {
    {0, rcOk},
    {1, rcNotSupported},
    {2, rcFileNotFound},
    {3, rcPathNotFound},
    {5, rcAccessDenied},
    {6, rcInvalidHandle},
    {8, rcOutOfMemory},
    {21, rcNotReady},
    {24, rcInvalidSize},
    {31, rcUnspecifiedError},
    {32, rcSharingViolation},
    {33, rcSharingViolation},
    {50, rcNotSupported},
    {53, rcPathNotFound},
    {80, rcAlreadyExists},
    {87, rcInvalidArgument},
    {111, rcBufferTooSmall},
    {112, rcOutOfSpace},
    {122, rcBufferTooSmall},
    {123, rcInvalidPathName},
    {126, rcModuleNotFound},
    {127, rcSymbolNotFound},
    {160, rcInvalidArgument},
    {183, rcAlreadyExists},
    {234, rcBufferTooSmall},
    {267, rcPathNotFound},
    {393, rcCloudFileRequestAborted},
    {637, rcSystemImageBadSignature},
    {995, rcOperationCancelled},
    {1168, rcNotFound},
    {1347, rcCannotOpenAnonymousToken},
    {1413, rcInvalidIndex},
    {1450, rcInsufficientResources},
    {1460, rcOperationTimeout},
    {14001, rcSxsIsIncorrect},
};

}  // namespace

result_t ResultFromPlatformError(std::uint32_t error) noexcept {
    const auto* const found =
        std::find_if(std::begin(kMappings), std::end(kMappings),
                     [error](const Mapping& mapping) { return mapping.error == error; });
    if (found != std::end(kMappings)) {
        return found->code;
    }
    if (error < 0x10000) {
        return static_cast<result_t>(0x80070000 | error);
    }
    if (static_cast<std::int32_t>(error) >= 0) {
        return rcOk;
    }
    // A result code of the Windows family that was taken for an error number.
    if ((error & 0x0FFF0000) == 0x00070000) {
        return ResultFromPlatformError(error & 0xFFFF);
    }
    return rcUnspecifiedPlatformError;
}

}  // namespace qor
