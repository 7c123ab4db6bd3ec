// Where links lead: what tools need of the system beside what the module needs.
#pragma once

#include <filesystem>
#include <system_error>

namespace Platform {

/// The absolute path of what a path names, with the links on the way followed; of what does not exist,
/// that of the directory that does and the rest behind it.
/// @param error  set when the system refuses to tell.
std::filesystem::path ResolveLinks(const std::filesystem::path& path, std::error_code& error);

}  // namespace Platform
