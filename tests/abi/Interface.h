// The numbers of the binary interface.
#pragma once

#include <cstdint>

namespace abi_host {

using Result = std::int32_t;

constexpr Result Code(std::uint32_t value) {
    return static_cast<Result>(value);
}

inline constexpr Result kOk = 0;
inline constexpr Result kFalse = 1;
inline constexpr Result kInterfaceNotSupported = Code(0x80000001);
inline constexpr Result kNotSupported = Code(0x80000042);
inline constexpr Result kNotImplemented = Code(0x80000043);
inline constexpr Result kInvalidArgument = Code(0x80000046);
inline constexpr Result kUnspecifiedError = Code(0x8000004B);
inline constexpr Result kNotFound = Code(0x8000004C);
inline constexpr Result kInvalidState = Code(0x8000006A);

inline constexpr std::uint32_t kAllocatorId = 0x9CCA5603;
inline constexpr std::uint32_t kTracerId = 0x6EF3329B;
inline constexpr std::uint32_t kFactoryId = 0x80077A33;
inline constexpr std::uint32_t kManagerId = 0x9E168F3F;
inline constexpr std::uint32_t kConstructId = 0xA2C68B41;
inline constexpr std::uint32_t kLocalizerId = 0xD4AEF19D;
inline constexpr std::uint32_t kConverterId = 0x465EBE3F;
inline constexpr std::uint32_t kErrorListenerId = 0x3E9CBC27;
inline constexpr std::uint32_t kStreamId = 0x0000000A;

inline constexpr std::uint32_t kManagerClass = 0x70B22AA2;
inline constexpr std::uint32_t kConverterClass = 0xBCE7112A;

// The slots after the three that every object has.
enum ManagerSlot { kInit = 3, kFromFiles, kInitEx, kFromBuffer, kFromBuffers };
enum LocalizerSlot { kGetString = 3, kGetStream, kHasResource, kHasString, kGetResolved, kGetPath };

}  // namespace abi_host
