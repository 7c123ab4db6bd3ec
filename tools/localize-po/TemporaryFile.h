// A file of no name that others know.
#pragma once

#include <string>
#include <string_view>

namespace localize_po {

/// gettext's library reads and writes files alone. Removed in the end.
class TemporaryFile {
public:
    /// @throws std::runtime_error when it cannot be made.
    explicit TemporaryFile(std::string_view bytes = {});
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::string& Path() const noexcept { return path_; }

private:
    std::string path_;
};

}  // namespace localize_po
