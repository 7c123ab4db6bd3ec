// What a path leads to on Windows.
#include "Paths.h"
#include "Platform.h"
#include "System.h"

namespace Platform {

ErrorNumber ReadPathAttributes(std::u16string_view path, PathAttributes& attributes) {
    const auto name = Windows::FileName(path);
    if (!name) {
        return Windows::kInvalidName;
    }
    const DWORD found = ::GetFileAttributesW(name->c_str());
    if (found == INVALID_FILE_ATTRIBUTES) {
        return ::GetLastError();
    }
    attributes.isDirectory = (found & FILE_ATTRIBUTE_DIRECTORY) != 0;
    attributes.isLink = (found & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return kNoError;
}

}  // namespace Platform
