// Changing files: what tools need of the system beside what the module needs.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace Platform {

/// Writes a file beside another one, or beside where none is, and puts it in its place, so that
/// whoever looks finds the old one or the new one whole, whenever the process or the machine ends.
/// Owner and mode stay what they were.
/// @param path  of a regular file, or of nothing. A link is replaced and not followed.
/// @return why not, owner and mode that cannot be kept included; the old file is then as it was.
std::error_code WriteFileWhole(const std::filesystem::path& path, std::string_view bytes);

}  // namespace Platform
