#include "TempTree.h"

#include <fstream>
#include <random>

namespace lm_test {

namespace fs = std::filesystem;

TempTree::TempTree() {
    std::random_device random;
    do {
        root_ = fs::temp_directory_path() / ("lm_test_" + std::to_string(random()));
    } while (!fs::create_directory(root_));
}

TempTree::~TempTree() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

fs::path TempTree::Write(const std::string& name, std::string_view bytes) const {
    const fs::path path = root_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream file;
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.open(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return path;
}

std::u16string TempTree::Path(const std::string& name) const {
    return (name.empty() ? root_ : root_ / name).u16string();
}

}  // namespace lm_test
