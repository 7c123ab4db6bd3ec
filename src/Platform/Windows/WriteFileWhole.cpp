#include "WriteFileWhole.h"

#include <algorithm>
#include <string>

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

/// A new file under a name that no other process uses.
class FileBeside {
public:
    explicit FileBeside(const std::wstring& path) {
        constexpr int kMostTries = 1000;  // as many as ended processes of the same number may leave
        for (int i = 0; i < kMostTries && !IsOpen(); ++i) {
            name_ = path + L".new-" + std::to_wstring(::GetCurrentProcessId()) + L'-' +
                    std::to_wstring(i);
            handle_ =
                ::CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
            if (!IsOpen() && ::GetLastError() != ERROR_FILE_EXISTS) {
                return;
            }
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (!name_.empty()) {
            Close();
            ::DeleteFileW(name_.c_str());
        }
    }

    bool IsOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }

    bool Write(std::string_view bytes) const {
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

    /// What replaces a file keeps its owner and who may use it.
    bool Replace(const std::wstring& path) {
        Close();
        const DWORD old = ::GetFileAttributesW(path.c_str());
        const bool isFile =
            old != INVALID_FILE_ATTRIBUTES && (old & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
        const BOOL replaced =
            isFile ? ::ReplaceFileW(path.c_str(), name_.c_str(), nullptr, 0, nullptr, nullptr)
                   : ::MoveFileExW(name_.c_str(), path.c_str(),
                                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        if (replaced != FALSE) {
            name_.clear();
        }
        return replaced != FALSE;
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
