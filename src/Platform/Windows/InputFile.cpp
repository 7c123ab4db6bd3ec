// Files on Windows.
#include "InputFile.h"

#include "Paths.h"
#include "System.h"

namespace Platform {

namespace {

HANDLE SystemHandle(std::intptr_t handle) noexcept {
    return reinterpret_cast<HANDLE>(handle);
}

}  // namespace

ErrorNumber InputFile::Open(std::u16string_view path) {
    Close();
    const auto name = Windows::FileName(path);
    if (!name) {
        return Windows::kInvalidName;
    }
    const HANDLE opened = ::CreateFileW(name->c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return ::GetLastError();
    }
    // Devices have names in every directory, and to read from one may wait for ever.
    if (::GetFileType(opened) != FILE_TYPE_DISK) {
        ::CloseHandle(opened);
        return ERROR_ACCESS_DENIED;
    }
    handle_ = reinterpret_cast<Handle>(opened);
    return kNoError;
}

void InputFile::Close() noexcept {
    if (handle_ != kInvalidHandle) {
        ::CloseHandle(SystemHandle(handle_));
        handle_ = kInvalidHandle;
    }
}

ErrorNumber InputFile::Read(void* destination, std::uint32_t wanted, std::uint32_t& read) {
    DWORD count = 0;
    if (::ReadFile(SystemHandle(handle_), destination, wanted, &count, nullptr) == FALSE) {
        return ::GetLastError();
    }
    read = count;
    return kNoError;
}

ErrorNumber InputFile::Seek(Origin origin, std::int64_t offset, std::int64_t& position) {
    const DWORD method = origin == Origin::Start     ? FILE_BEGIN
                         : origin == Origin::Current ? FILE_CURRENT
                                                     : FILE_END;
    LARGE_INTEGER distance;
    LARGE_INTEGER moved;
    distance.QuadPart = offset;
    if (::SetFilePointerEx(SystemHandle(handle_), distance, &moved, method) == FALSE) {
        return ::GetLastError();
    }
    position = moved.QuadPart;
    return kNoError;
}

ErrorNumber InputFile::GetSize(std::int64_t& size) const {
    LARGE_INTEGER bytes;
    if (::GetFileSizeEx(SystemHandle(handle_), &bytes) == FALSE) {
        return ::GetLastError();
    }
    size = bytes.QuadPart;
    return kNoError;
}

}  // namespace Platform
