// File names as the system takes them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform::Posix {

/// The name in UTF-8, whatever the locale. Empty when it has no such form: an unpaired surrogate,
/// or a zero, which would cut the name short.
std::optional<std::string> FileName(std::u16string_view path);

}  // namespace Platform::Posix
