// What becomes of a file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace lm_edit {

struct FileChange {
    std::filesystem::path path;
    std::string bytes;      // the whole file
    std::size_t count = 0;  // of what was added or renamed in it
    bool isNew = false;
};

}  // namespace lm_edit
