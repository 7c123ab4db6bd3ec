#include "read_lock.h"

#include <stdexcept>
#include <system_error>

#include "read_text.h"
#include "tree/path_text.h"

namespace localize {

namespace fs = std::filesystem;

std::string ReadIfThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error) ? ReadBytes(lm_tree::Utf8Of(path)) : std::string();
}

lm_check::TranslationLock ReadLock(const fs::path& root) {
    const fs::path path = root / lm_check::TranslationLock::kFileName;
    try {
        return lm_check::TranslationLock(ReadIfThere(path));
    } catch (const std::invalid_argument& unreadable) {
        throw std::runtime_error(lm_tree::Utf8Of(path.parent_path()) + "/" + unreadable.what());
    }
}

}  // namespace localize
