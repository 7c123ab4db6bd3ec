#include "WriteFileWhole.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "Paths.h"
#include "System.h"

namespace Platform {

namespace {

std::error_code ErrorOf(DWORD number) {
    return {static_cast<int>(number), std::system_category()};
}

std::error_code LastError() {
    return ErrorOf(::GetLastError());
}

/// What a file gives to the one that replaces it: who owns it and may use it, and how it is shown.
class Inheritance {
public:
    explicit Inheritance(const std::wstring& path) {
        const DWORD attributes = ::GetFileAttributesW(path.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES) {
            isKnown_ = ::GetLastError() == ERROR_FILE_NOT_FOUND;
            return;
        }
        attributes_ = attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                    FILE_ATTRIBUTE_NOT_CONTENT_INDEXED);
        constexpr SECURITY_INFORMATION kParts =
            OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
        DWORD size = 0;
        ::GetFileSecurityW(path.c_str(), kParts, nullptr, 0, &size);
        descriptor_.resize(size);
        isKnown_ =
            ::GetFileSecurityW(path.c_str(), kParts, descriptor_.data(), size, &size) != FALSE;
    }

    /// Whether there was a file to ask, or none at all; the system tells the reason otherwise.
    bool IsKnown() const noexcept { return isKnown_; }

    HANDLE CreateNew(const std::wstring& name) {
        SECURITY_ATTRIBUTES security = {sizeof(security), descriptor_.data(), FALSE};
        return ::CreateFileW(name.c_str(), GENERIC_WRITE, 0,
                             descriptor_.empty() ? nullptr : &security, CREATE_NEW, attributes_,
                             nullptr);
    }

private:
    DWORD attributes_ = 0;
    std::vector<std::byte> descriptor_;  // empty for what a new file has
    bool isKnown_ = false;
};

/// A new file under a name that no other process uses.
class FileBeside {
public:
    explicit FileBeside(const std::wstring& path) {
        Inheritance inheritance(path);
        constexpr int kMostTries = 1000;  // as many as ended processes of the same number may leave
        for (int i = 0; i < kMostTries && inheritance.IsKnown() && !IsOpen(); ++i) {
            name_ = path + L".new-" + std::to_wstring(::GetCurrentProcessId()) + L'-' +
                    std::to_wstring(i);
            handle_ = inheritance.CreateNew(name_);
            if (!IsOpen() && ::GetLastError() != ERROR_FILE_EXISTS) {
                return;
            }
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (isMine_) {
            Close();
            ::DeleteFileW(name_.c_str());
        }
    }

    bool IsOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }

    bool Write(std::string_view bytes) {
        isMine_ = true;
        constexpr std::size_t kMost = std::size_t{1} << 30U;
        while (!bytes.empty()) {
            DWORD count = 0;
            if (::WriteFile(handle_, bytes.data(),
                            static_cast<DWORD>(std::min(bytes.size(), kMost)), &count,
                            nullptr) == FALSE) {
                return false;
            }
            bytes.remove_prefix(count);
        }
        return ::FlushFileBuffers(handle_) != FALSE;
    }

    /// In one step: what ReplaceFile does takes several, and may end between them.
    bool Replace(const std::wstring& path) {
        Close();
        isMine_ = ::MoveFileExW(name_.c_str(), path.c_str(),
                                MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == FALSE;
        return !isMine_;
    }

private:
    void Close() noexcept {
        if (IsOpen()) {
            ::CloseHandle(handle_);
            handle_ = INVALID_HANDLE_VALUE;
        }
    }

    std::wstring name_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    bool isMine_ = false;  // and has to be deleted
};

}  // namespace

std::error_code WriteFileWhole(const std::filesystem::path& path, std::string_view bytes) {
    const auto name = Windows::FileName(path.u16string());
    if (!name) {
        return ErrorOf(Windows::kInvalidName);
    }
    FileBeside beside(*name);
    if (!beside.IsOpen() || !beside.Write(bytes) || !beside.Replace(*name)) {
        return LastError();  // before the new file is deleted
    }
    return {};
}

}  // namespace Platform
