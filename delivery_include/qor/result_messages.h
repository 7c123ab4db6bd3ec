// The messages of result codes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qor/basic_string_t.h"
#include "qor/result_codes.h"

namespace qor {

namespace detail {

constexpr std::string_view PlatformResultText(result_t code) noexcept {
    switch (code) {
        case rcUnspecifiedPlatformError:
            return "Unspecified platform error";
        case rcInvalidHandle:
            return "Invalid handle";
        case rcFileNotFound:
            return "File not found";
        case rcPathNotFound:
            return "Path not found";
        case rcSharingViolation:
            return "Sharing violation";
        case rcAlreadyExists:
            return "Already exists";
        case rcWaitAbandoned:
            return "Wait abandoned";
        case rcSymbolNotFound:
            return "Symbol not found";
        case rcSxsIsIncorrect:
            return "Sxs is incorrect";
        case rcInvalidPathName:
            return "Invalid path name";
        case rcCannotOpenAnonymousToken:
            return "Cannot open an anonymous level security token";
        case rcPasswordIsInvalid:
            return "Password is invalid";
        case rcModuleNotFound:
            return "Module not found";
        case rcSystemImageBadSignature:
            return "System image bad signature";
        case rcCloudFileRequestAborted:
            return "Cloud file request aborted";
        case rcMemoryMappingFailed:
            return "Memory mapping failed";
        default:
            return "Unknown platform result code";
    }
}

constexpr std::string_view FrameworkResultText(result_t code) noexcept {
    switch (code) {
        case rcOk:
            return "No error";
        case rcFalse:
            return "False";
        case rcInterfaceNotSupported:
            return "Interface not supported";
        case rcUnexpected:
            return "Unexpected";
        case rcOutOfMemory:
            return "Out of memory";
        case rcNotSupported:
            return "Not supported";
        case rcNotImplemented:
            return "Not implemented";
        case rcBufferTooSmall:
            return "Buffer too small";
        case rcAccessDenied:
            return "Access denied";
        case rcInvalidArgument:
            return "Invalid argument";
        case rcNotMatched:
            return "Not matched";
        case rcUnspecifiedError:
            return "Unspecified error";
        case rcNotFound:
            return "Not found";
        case rcFound:
            return "Found";
        case rcLocked:
            return "Locked";
        case rcNotLocked:
            return "Not locked";
        case rcOperationCancelled:
            return "Operation cancelled";
        case rcMethodNotFound:
            return "Method not found";
        case rcStackIsEmpty:
            return "Stack is empty";
        case rcMediaError:
            return "Media error";
        case rcInvalidSignature:
            return "Invalid signature";
        case rcInvalidVersion:
            return "Invalid version";
        case rcInvalidSize:
            return "Invalid size";
        case rcInvalidType:
            return "Invalid type";
        case rcInvalidIndex:
            return "Invalid index";
        case rcOutOfSpace:
            return "Out of space";
        case rcNotReady:
            return "Not ready";
        case rcLessThan:
            return "Less than";
        case rcMoreThan:
            return "More than";
        case rcProhibited:
            return "Prohibited";
        case rcAlreadyDone:
            return "Already done";
        case rcNeedReboot:
            return "Need reboot";
        case rcBasesCorrupted:
            return "Bases corrupted";
        case rcInvalidState:
            return "Invalid state";
        case rcNotInitialized:
            return "Not initialized";
        case rcInsufficientResources:
            return "Insufficient resources";
        case rcInvalidResult:
            return "Invalid result";
        case rcUnknownException:
            return "Unknown exception";
        case rcMetaInformationNotFound:
            return "Meta information not found";
        case rcClassNotFound:
            return "Class not found";
        case rcSettingsAreRequired:
            return "Settings are required";
        case rcUnexpectedSettings:
            return "Unexpected settings";
        case rcWrongSettingsType:
            return "Wrong settings type";
        case rcPropertyNotFound:
            return "Property not found";
        case rcOperationTimeout:
            return "Operation timeout";
        default:
            return "Unknown result code";
    }
}

}  // namespace detail

/// The ASCII message of a result code; never empty, valid for the life of the program.
constexpr std::string_view ResultText(result_t code) noexcept {
    constexpr std::uint32_t kFamilyMask = 0x7FFF0000;
    constexpr std::uint32_t kPlatformFamily = 0x00010000;
    const bool isPlatform = (static_cast<std::uint32_t>(code) & kFamilyMask) == kPlatformFamily;
    return isPlatform ? detail::PlatformResultText(code) : detail::FrameworkResultText(code);
}

/// The same as framework text, in storage of the process heap.
inline string16_t GetResultCodeMessage(result_t code) {
    const std::string_view text = ResultText(code);
    return string16_t(std::u16string(text.begin(), text.end()));
}

}  // namespace qor
