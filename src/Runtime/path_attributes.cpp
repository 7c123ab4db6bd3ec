#include "qor/rtl/filesystem/path_attributes.h"

#include "Platform.h"
#include "qor/rtl/error_handling/result_from_platform_error.h"

namespace qor::filesystem {

result_t IsDirectory(std::u16string_view path) {
    Platform::PathAttributes attributes = {};
    const Platform::ErrorNumber error = Platform::ReadPathAttributes(path, attributes);
    if (error != Platform::kNoError) {
        const result_t code = ResultFromPlatformError(error);
        return code == rcOk ? rcFalse : code;
    }
    return attributes.isDirectory && !attributes.isLink ? rcOk : rcFalse;
}

bool Exists(std::u16string_view path) {
    Platform::PathAttributes attributes = {};
    return ResultFromPlatformError(Platform::ReadPathAttributes(path, attributes)) == rcOk;
}

}  // namespace qor::filesystem
