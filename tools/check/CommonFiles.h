// Common files, which every scope of their cultures needs.
#pragma once

#include <map>
#include <memory>
#include <mutex>

#include "check/TextFile.h"

namespace lm_check {

/// Keeps a file as long as somebody uses it, and the one that was asked for last. May be used from
/// any number of threads.
class CommonFiles {
public:
    explicit CommonFiles(const lm_tree::Tree& tree) : tree_(tree) {}

    /// @return null when it cannot be read, which is said where the file itself is judged.
    std::shared_ptr<const TextFile> Get(lm_tree::FileId file);

private:
    const lm_tree::Tree& tree_;
    std::mutex mutex_;
    std::map<lm_tree::FileId, std::weak_ptr<const TextFile>> files_;
    std::shared_ptr<const TextFile> last_;
};

}  // namespace lm_check
