// The library's own function does not know the links of this system.
#include "ResolveLinks.h"

#include <string>

#include "Paths.h"
#include "System.h"

namespace Platform {

namespace fs = std::filesystem;

namespace {

std::error_code LastError() {
    return {static_cast<int>(::GetLastError()), std::system_category()};
}

/// Without the prefix of names that are taken as they are, which the library does not understand.
std::wstring WithoutPrefix(const std::wstring& name) {
    constexpr std::wstring_view kServer = LR"(\\?\UNC\)";
    constexpr std::wstring_view kPrefix = LR"(\\?\)";
    if (name.compare(0, kServer.size(), kServer) == 0) {
        return LR"(\\)" + name.substr(kServer.size());
    }
    return name.compare(0, kPrefix.size(), kPrefix) == 0 ? name.substr(kPrefix.size()) : name;
}

std::wstring FinalName(HANDLE file) {
    std::wstring name(::GetFinalPathNameByHandleW(file, nullptr, 0, 0), L'\0');
    const DWORD length =
        ::GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), 0);
    name.resize(length < name.size() ? length : 0);
    return name;
}

/// Where something that exists lies.
fs::path Final(const fs::path& path, std::error_code& error) {
    const auto name = Windows::FileName(path.u16string());
    if (!name) {
        error = {static_cast<int>(Windows::kInvalidName), std::system_category()};
        return {};
    }
    const HANDLE file = ::CreateFileW(
        name->c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);  // directories can be opened, too
    if (file == INVALID_HANDLE_VALUE) {
        error = LastError();
        return {};
    }
    const std::wstring final = FinalName(file);
    error = final.empty() ? LastError() : std::error_code();
    ::CloseHandle(file);
    return WithoutPrefix(final);
}

}  // namespace

fs::path ResolveLinks(const fs::path& path, std::error_code& error) {
    fs::path there = fs::absolute(path, error);
    if (error) {
        return {};
    }
    fs::path further;
    for (;;) {
        const fs::path final = Final(there, error);
        if (!error) {
            return further.empty() ? final : final / further;
        }
        const bool isMissing =
            error.value() == ERROR_FILE_NOT_FOUND || error.value() == ERROR_PATH_NOT_FOUND;
        if (!isMissing || there == there.root_path()) {
            return {};
        }
        further = further.empty() ? there.filename() : there.filename() / further;
        there = there.parent_path();
    }
}

}  // namespace Platform
