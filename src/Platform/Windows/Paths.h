// File names as the system takes them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform.h"

namespace Platform::Windows {

inline constexpr ErrorNumber kInvalidName = 123;  // ERROR_INVALID_NAME

/// The name for the system's wide functions, longer than they take by themselves if need be. Empty for a
/// name with a zero, which would cut it short.
std::optional<std::wstring> FileName(std::u16string_view path);

}  // namespace Platform::Windows
