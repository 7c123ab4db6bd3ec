#include "qor/rtl/filesystem/File.h"

#include "Platform.h"
#include "qor/IIO.h"
#include "qor/rtl/error_handling/result_messages.h"

namespace qor::filesystem {

namespace {

Platform::SeekOrigin ToPlatform(std::int32_t origin) noexcept {
    switch (origin) {
        case seek_origin::Current:
            return Platform::SeekOrigin::Current;
        case seek_origin::End:
            return Platform::SeekOrigin::End;
        default:
            return Platform::SeekOrigin::Start;
    }
}

}  // namespace

File::~File() {
    Close();
}

result_t File::Create(std::u16string_view name, std::uint32_t /*access*/,
                      std::uint32_t /*disposition*/, std::uint32_t /*flags*/) {
    static_assert(kInvalidHandle == Platform::kInvalidFileHandle);
    Close();
    // The only way of opening files that the component needs, and so the only one to supply.
    return ResultFromPlatformError(
        Platform::OpenFile(name, Platform::FileAccess::Read, Platform::FileSharing::Read,
                           Platform::FileDisposition::OpenExisting, handle_));
}

void File::Close() noexcept {
    if (handle_ != kInvalidHandle) {
        Platform::CloseFile(handle_);
        handle_ = kInvalidHandle;
    }
}

result_t File::Read(void* destination, std::uint32_t wanted, std::uint32_t& read) {
    return ResultFromPlatformError(Platform::ReadFile(handle_, destination, wanted, read));
}

result_t File::Seek(std::int32_t origin, std::int64_t offset, std::int64_t& position) {
    return ResultFromPlatformError(
        Platform::SeekFile(handle_, ToPlatform(origin), offset, position));
}

result_t File::GetSize(std::int64_t& size) const {
    return ResultFromPlatformError(Platform::GetFileSize(handle_, size));
}

result_t IsDirectory(std::u16string_view path) {
    Platform::FileAttributes attributes = {};
    const Platform::ErrorNumber error = Platform::GetFileAttributes(path, attributes);
    if (error != Platform::kNoError) {
        const result_t code = ResultFromPlatformError(error);
        return code == rcOk ? rcFalse : code;
    }
    return attributes.isDirectory && !attributes.isLink ? rcOk : rcFalse;
}

bool Exists(std::u16string_view path) {
    Platform::FileAttributes attributes = {};
    return ResultFromPlatformError(Platform::GetFileAttributes(path, attributes)) == rcOk;
}

}  // namespace qor::filesystem
