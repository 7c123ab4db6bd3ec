// Files on POSIX.
#include "InputFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "ErrorNumbers.h"
#include "Paths.h"

namespace Platform {

static_assert(sizeof(off_t) == 8, "files have more bytes than 32 bits can count");

namespace {

/// Repeats a call that a signal interrupted.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

using Posix::LastError;

/// Owns a descriptor until it is handed out.
class Descriptor {
public:
    explicit Descriptor(int value) noexcept : value_(value) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (value_ != -1) {
            ::close(value_);
        }
    }

    int get() const noexcept { return value_; }
    int Detach() noexcept {
        const int value = value_;
        value_ = -1;
        return value;
    }

private:
    int value_;
};

/// Shares the file with other readers for as long as it is open. File systems without locks are
/// used without one.
ErrorNumber ShareForReading(int descriptor) {
    if (Uninterrupted([&] { return ::flock(descriptor, LOCK_SH | LOCK_NB); }) == -1 &&
        errno == EWOULDBLOCK) {
        return Posix::kSharingViolation;
    }
    return kNoError;
}

}  // namespace

ErrorNumber InputFile::Open(std::u16string_view path) {
    Close();
    const auto name = Posix::FileName(path);
    if (!name) {
        return Posix::kInvalidName;
    }
    // Asked before opening, because to open a device can already set something off; and again
    // after, because the name may mean another file by then.
    struct stat status = {};
    if (::stat(name->c_str(), &status) == -1) {
        return LastError();
    }
    if (!S_ISREG(status.st_mode)) {
        return Posix::kAccessDenied;
    }
    const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    Descriptor descriptor(Uninterrupted([&] { return ::open(name->c_str(), flags); }));
    if (descriptor.get() == -1 || ::fstat(descriptor.get(), &status) == -1) {
        return LastError();
    }
    if (!S_ISREG(status.st_mode)) {
        return Posix::kAccessDenied;
    }
    if (const ErrorNumber error = ShareForReading(descriptor.get()); error != kNoError) {
        return error;
    }
    handle_ = descriptor.Detach();
    return kNoError;
}

void InputFile::Close() noexcept {
    if (handle_ != kInvalidHandle) {
        ::close(static_cast<int>(handle_));
        handle_ = kInvalidHandle;
    }
}

ErrorNumber InputFile::Read(void* destination, std::uint32_t wanted, std::uint32_t& read) {
    std::uint32_t total = 0;
    ssize_t count = 0;
    do {  // at least once: an invalid handle is an error even when nothing is wanted
        char* const position = static_cast<char*>(destination) + total;
        count = Uninterrupted(
            [&] { return ::read(static_cast<int>(handle_), position, wanted - total); });
        if (count == -1) {
            return LastError();
        }
        total += static_cast<std::uint32_t>(count);
    } while (count != 0 && total < wanted);
    read = total;
    return kNoError;
}

ErrorNumber InputFile::Seek(Origin origin, std::int64_t offset, std::int64_t& position) {
    const int whence = origin == Origin::Start     ? SEEK_SET
                       : origin == Origin::Current ? SEEK_CUR
                                                   : SEEK_END;
    const off_t moved = ::lseek(static_cast<int>(handle_), offset, whence);
    if (moved == -1) {
        // The system has one error for a move that ends before the start and for one that ends
        // beyond what it can count; only a move backwards can be the former.
        return errno == EINVAL && offset < 0 ? Posix::kNegativeSeek : LastError();
    }
    position = moved;
    return kNoError;
}

ErrorNumber InputFile::GetSize(std::int64_t& size) const {
    struct stat status = {};
    if (::fstat(static_cast<int>(handle_), &status) == -1) {
        return LastError();
    }
    size = status.st_size;
    return kNoError;
}

}  // namespace Platform
