#include "WriteFileWhole.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

namespace Platform {

namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

/// A new file under a name that no other process uses.
class FileBeside {
public:
    explicit FileBeside(const std::string& path) {
        constexpr int kMostTries = 1000;  // as many as ended processes of the same number may leave
        for (int i = 0; i < kMostTries && descriptor_ == -1; ++i) {
            name_ = path + ".new-" + std::to_string(::getpid()) + '-' + std::to_string(i);
            descriptor_ =
                ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                       S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH);
            if (descriptor_ == -1 && errno != EEXIST) {
                return;
            }
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (descriptor_ != -1) {
            ::close(descriptor_);
            ::unlink(name_.c_str());
        }
    }

    bool IsOpen() const noexcept { return descriptor_ != -1; }

    /// Gives it the owner and mode of the file that it will replace, if there is one.
    bool TakeAfter(const char* path) const {
        struct stat old = {};
        struct stat own = {};
        if (::lstat(path, &old) == -1) {
            return errno == ENOENT;
        }
        if (!S_ISREG(old.st_mode)) {
            errno = S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
            return S_ISLNK(old.st_mode);
        }
        constexpr mode_t kPermissions = 07777;
        return ::fstat(descriptor_, &own) != -1 &&
               ((own.st_uid == old.st_uid && own.st_gid == old.st_gid) ||
                ::fchown(descriptor_, old.st_uid, old.st_gid) != -1) &&
               ::fchmod(descriptor_, old.st_mode & kPermissions) != -1;
    }

    bool Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
            if (count == -1 && errno != EINTR) {
                return false;
            }
            bytes.remove_prefix(count == -1 ? 0 : static_cast<std::size_t>(count));
        }
        return ::fsync(descriptor_) != -1;
    }

    bool Replace(const char* path) {
        if (::rename(name_.c_str(), path) == -1) {
            return false;
        }
        ::close(descriptor_);
        descriptor_ = -1;
        return true;
    }

private:
    std::string name_;
    int descriptor_ = -1;
};

}  // namespace

std::error_code WriteFileWhole(const std::filesystem::path& path, std::string_view bytes) {
    FileBeside beside(path.native());
    if (!beside.IsOpen()) {
        return LastError();
    }
    if (!beside.TakeAfter(path.c_str()) || !beside.Write(bytes) || !beside.Replace(path.c_str())) {
        return LastError();
    }
    return {};
}

}  // namespace Platform
