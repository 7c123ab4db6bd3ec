// The system's error numbers in Windows terms.
#pragma once

#include "Platform.h"

namespace Platform::Posix {

inline constexpr ErrorNumber kAccessDenied = 5;
inline constexpr ErrorNumber kInvalidHandle = 6;
inline constexpr ErrorNumber kGeneralFailure = 31;
inline constexpr ErrorNumber kSharingViolation = 32;
inline constexpr ErrorNumber kInvalidName = 123;
inline constexpr ErrorNumber kNegativeSeek = 131;

/// Of the call that failed last, from `errno`.
ErrorNumber LastError() noexcept;

}  // namespace Platform::Posix
