#include "check/CommonFiles.h"

#include <exception>

namespace lm_check {

std::shared_ptr<const TextFile> CommonFiles::Get(lm_tree::FileId file) {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::shared_ptr<const TextFile> found = files_[file].lock();
    if (!found) {
        last_.reset();  // not to have two in memory
        try {
            found = std::make_shared<const TextFile>(tree_, file);
        } catch (const std::exception&) {
            return nullptr;
        }
        files_[file] = found;
    }
    last_ = found;
    return found;
}

}  // namespace lm_check
