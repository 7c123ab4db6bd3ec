// A directory of files for one test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lm_test {

/// Made empty in the system's temporary directory, removed with all that is in it.
class TempTree {
public:
    TempTree();
    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;
    ~TempTree();

    /// Writes a file, and the directories above it.
    /// @param name  path below the root.
    /// @return the file's full path.
    std::filesystem::path Write(const std::string& name, std::string_view bytes) const;

    const std::filesystem::path& Root() const noexcept { return root_; }

    /// The full path of something below the root, as the engine takes it; of the root itself
    /// without a name.
    std::u16string Path(const std::string& name = "") const;

private:
    std::filesystem::path root_;
};

}  // namespace lm_test
