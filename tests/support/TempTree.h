// A directory of files for one test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace lm_test {

/// Made empty in the system's temporary directory, removed with all that is in it.
class TempTree {
public:
    TempTree() {
        std::random_device random;
        do {
            root_ =
                std::filesystem::temp_directory_path() / ("lm_test_" + std::to_string(random()));
        } while (!std::filesystem::create_directory(root_));
    }
    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;
    ~TempTree() { std::filesystem::remove_all(root_); }

    /// Writes a file, and the directories above it.
    /// @param name  path below the root, in UTF-8.
    /// @return the file's full path.
    std::filesystem::path Write(const std::string& name, std::string_view bytes) const {
        std::filesystem::path path = root_ / std::filesystem::u8path(name);
        std::filesystem::create_directories(path.parent_path());
        EXPECT_TRUE((std::ofstream(path, std::ios::binary) << bytes).flush()) << path;
        return path;
    }

    const std::filesystem::path& Root() const noexcept { return root_; }

    /// The full path of something below the root, as the engine takes it; of the root itself
    /// without a name.
    std::u16string Path(const std::string& name = "") const {
        std::filesystem::path path = name.empty() ? root_ : root_ / std::filesystem::u8path(name);
        return path.make_preferred().u16string();
    }

private:
    std::filesystem::path root_;
};

}  // namespace lm_test
