#include "TemporaryFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace localize_po {

namespace {

[[noreturn]] void ThrowCannotMake(const std::string& path, const std::error_code& error) {
    throw std::runtime_error("cannot make a temporary file '" + path + "': " + error.message() +
                             "; TMPDIR may name another directory");
}

bool Write(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count == -1 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(count == -1 ? 0 : static_cast<std::size_t>(count));
    }
    return true;
}

}  // namespace

TemporaryFile::TemporaryFile(std::string_view bytes) {
    std::error_code error;
    const std::filesystem::path directory = std::filesystem::temp_directory_path(error);
    path_ = (directory / "localize-po.XXXXXX").string();
    if (error) {
        ThrowCannotMake(path_, error);
    }
    const int file = ::mkstemp(path_.data());
    if (file == -1) {
        ThrowCannotMake(path_, {errno, std::generic_category()});
    }
    const bool isWritten = Write(file, bytes);
    error = {errno, std::generic_category()};
    ::close(file);
    if (!isWritten) {
        ::unlink(path_.c_str());
        ThrowCannotMake(path_, error);
    }
}

TemporaryFile::~TemporaryFile() {
    ::unlink(path_.c_str());
}

}  // namespace localize_po
