#include "Paths.h"

#include "System.h"

namespace Platform {

const char16_t kPathSeparator = u'\\';

/// The system understands both separators.
std::u16string NativePath(std::u16string_view path) {
    return std::u16string(path);
}

namespace Windows {

namespace {

bool StartsWith(const std::wstring& name, std::wstring_view start) {
    return name.compare(0, start.size(), start) == 0;
}

/// The name from its drive or server on; itself when it has no such form.
std::wstring FullName(const std::wstring& name) {
    std::wstring full(::GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        ::GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size()) {
        return name;
    }
    full.resize(length);
    return full;
}

/// Names with the prefix are taken as they are, whatever their length: full, with backslashes.
std::wstring WithPrefix(const std::wstring& full) {
    if (StartsWith(full, LR"(\\.\)") || StartsWith(full, LR"(\\?\)")) {
        return full;
    }
    return StartsWith(full, LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

}  // namespace

std::optional<std::wstring> FileName(std::u16string_view path) {
    if (path.find(u'\0') != std::u16string_view::npos) {
        return std::nullopt;
    }
    std::wstring name(path.begin(), path.end());
    if (StartsWith(name, LR"(\\?\)")) {
        return name;
    }
    // A short name may stand for a long one, below a long working directory.
    const std::wstring full = FullName(name);
    return full.size() < MAX_PATH ? name : WithPrefix(full);
}

}  // namespace Windows

}  // namespace Platform
