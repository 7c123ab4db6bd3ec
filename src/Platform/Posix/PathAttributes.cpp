// What a path leads to on POSIX.
#include <sys/stat.h>

#include "ErrorNumbers.h"
#include "Paths.h"
#include "Platform.h"

namespace Platform {

ErrorNumber ReadPathAttributes(std::u16string_view path, PathAttributes& attributes) {
    const auto name = Posix::FileName(path);
    if (!name) {
        return Posix::kInvalidName;
    }
    struct stat status = {};
    if (::lstat(name->c_str(), &status) == -1) {
        return Posix::LastError();
    }
    attributes.isDirectory = S_ISDIR(status.st_mode);
    attributes.isLink = S_ISLNK(status.st_mode);
    return kNoError;
}

}  // namespace Platform
