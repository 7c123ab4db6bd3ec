#include "ResolveLinks.h"

namespace Platform {

std::filesystem::path ResolveLinks(const std::filesystem::path& path, std::error_code& error) {
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? absolute : std::filesystem::weakly_canonical(absolute, error);
}

}  // namespace Platform
