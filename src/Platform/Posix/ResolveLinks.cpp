#include "ResolveLinks.h"

namespace Platform {

std::filesystem::path ResolveLinks(const std::filesystem::path& path, std::error_code& error) {
    return std::filesystem::weakly_canonical(std::filesystem::absolute(path), error);
}

}  // namespace Platform
