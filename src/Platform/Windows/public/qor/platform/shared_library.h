// Loading a shared library on Windows, for hosts: header code, since a host compiles it.
#pragma once

#include <cstdarg>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>

#include "qor/decode_utf8.h"

struct HINSTANCE__;

namespace qor::platform {

inline constexpr const char* kSharedLibraryPrefix = "";
inline constexpr const char* kSharedLibrarySuffix = ".dll";

namespace detail {

#ifdef _WIN64
using ExportedFunction = long long(__stdcall*)();
#else
using ExportedFunction = int(__stdcall*)();
#endif

// As the system's own header declares them, which no host has to include for this one.
extern "C" {
__declspec(dllimport) unsigned long __stdcall GetLastError();
__declspec(dllimport) unsigned long __stdcall FormatMessageW(
    unsigned long flags, const void* source, unsigned long message, unsigned long language,
    wchar_t* text, unsigned long size, va_list* arguments);
__declspec(dllimport) unsigned long __stdcall GetModuleFileNameW(HINSTANCE__* library,
                                                                 wchar_t* name, unsigned long size);
__declspec(dllimport) int __stdcall GetModuleHandleExW(unsigned long flags, const wchar_t* name,
                                                       HINSTANCE__** library);
__declspec(dllimport) HINSTANCE__* __stdcall LoadLibraryExW(const wchar_t* name, void* file,
                                                            unsigned long flags);
__declspec(dllimport) ExportedFunction
    __stdcall GetProcAddress(HINSTANCE__* library, const char* name);
__declspec(dllimport) int __stdcall FreeLibrary(HINSTANCE__* library);
}

/// @return in UTF-8, without a line break.
inline std::string TextOfError(unsigned long error) {
    constexpr unsigned long kFromSystemInOneLine = 0x1000 | 0x200 | 0xFF;
    constexpr unsigned long kSize = 512;
    wchar_t text[kSize];
    unsigned long size =
        FormatMessageW(kFromSystemInOneLine, nullptr, error, 0, text, kSize, nullptr);
    while (size > 0 && text[size - 1] <= L' ') {
        --size;
    }
    const auto utf8 = std::filesystem::path(std::wstring(text, size)).u8string();
    return size > 0 ? std::string(utf8.begin(), utf8.end()) : "error " + std::to_string(error);
}

/// The program or library that this is compiled into.
inline std::filesystem::path OwnFile() {
    static const wchar_t here = L'\0';
    constexpr unsigned long kByAddressWithoutReference = 0x4 | 0x2;
    HINSTANCE__* own = nullptr;  // the program, should it not be known
    GetModuleHandleExW(kByAddressWithoutReference, &here, &own);
    std::wstring name(260, L'\0');
    unsigned long size = 0;
    while ((size = GetModuleFileNameW(own, name.data(), static_cast<unsigned long>(name.size()))) >=
           name.size()) {
        name.resize(2 * name.size());
    }
    name.resize(size);
    return name;
}

/// Where a library is: a bare name stands beside the program or library that asks. The system would go on to
/// look into places that others may write to, the working directory among them.
inline std::filesystem::path FullLibraryPath(const std::string& path) {
    std::u16string units;
    DecodeUtf8(path, std::back_inserter(units));
    const std::filesystem::path library(units);
    const bool isBare = !library.has_root_path() && !library.has_parent_path();
    return isBare ? OwnFile().replace_filename(library) : std::filesystem::absolute(library);
}

}  // namespace detail

/// @param path  a file in UTF-8; a bare name stands beside the program or library that this is compiled into.
/// @return a handle to give back with `CloseSharedLibrary`.
/// @throws std::runtime_error with the system's message.
inline void* OpenSharedLibrary(const std::string& path) {
    const std::filesystem::path full = detail::FullLibraryPath(path).make_preferred();
    // What the library itself needs is looked for beside it, not beside the program that runs.
    constexpr unsigned long kWithAlteredSearchPath = 8;
    HINSTANCE__* const handle =
        detail::LoadLibraryExW(full.c_str(), nullptr, kWithAlteredSearchPath);
    if (handle == nullptr) {
        const unsigned long error = detail::GetLastError();
        const auto name = full.u8string();
        throw std::runtime_error("cannot load module: " + std::string(name.begin(), name.end()) +
                                 ": " + detail::TextOfError(error));
    }
    return handle;
}

/// @throws std::runtime_error with the system's message when the library exports no such name.
inline void* FindInSharedLibrary(void* handle, const char* name) {
    const auto function = detail::GetProcAddress(static_cast<HINSTANCE__*>(handle), name);
    if (function == nullptr) {
        const unsigned long error = detail::GetLastError();
        throw std::runtime_error(std::string("not a localization manager module: ") + name + ": " +
                                 detail::TextOfError(error));
    }
    return reinterpret_cast<void*>(function);
}

inline void CloseSharedLibrary(void* handle) noexcept {
    detail::FreeLibrary(static_cast<HINSTANCE__*>(handle));
}

}  // namespace qor::platform
