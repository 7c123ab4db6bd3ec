// Loading a shared library on POSIX, for hosts: header code, since a host compiles it.
#pragma once

#include <dlfcn.h>

#include <stdexcept>
#include <string>

namespace qor::platform {

inline constexpr const char* kSharedLibraryPrefix = "lib";
inline constexpr const char* kSharedLibrarySuffix = ".so";

/// @param path  a file in UTF-8; a bare name is searched where the run path points of the program or
///              library that this is compiled into.
/// @return a handle to give back with `CloseSharedLibrary`.
/// @throws std::runtime_error with the loader's message.
inline void* OpenSharedLibrary(const std::string& path) {
    void* const handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        throw std::runtime_error(std::string("cannot load module: ") + ::dlerror());
    }
    return handle;
}

/// @throws std::runtime_error with the loader's message when the library exports no such name.
inline void* FindInSharedLibrary(void* handle, const char* name) {
    void* const symbol = ::dlsym(handle, name);
    if (symbol == nullptr) {
        throw std::runtime_error(std::string("not a localization manager module: ") + ::dlerror());
    }
    return symbol;
}

inline void CloseSharedLibrary(void* handle) noexcept {
    ::dlclose(handle);
}

}  // namespace qor::platform
