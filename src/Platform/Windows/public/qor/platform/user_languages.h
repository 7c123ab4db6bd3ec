// The languages that a user of Windows has chosen: header code, since a host compiles it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace qor::platform {

namespace detail {

// As the system's own header declares it, which no host has to include for this one.
extern "C" {
__declspec(dllimport) int __stdcall GetUserPreferredUILanguages(unsigned long flags,
                                                                unsigned long* count,
                                                                wchar_t* names,
                                                                unsigned long* size);
}

}  // namespace detail

/// Most wanted first, as BCP 47 names; none when the system gives none.
inline std::vector<std::string> UserLanguages() {
    constexpr unsigned long kNames = 0x8;
    unsigned long count = 0;
    unsigned long size = 0;
    if (detail::GetUserPreferredUILanguages(kNames, &count, nullptr, &size) == 0) {
        return {};
    }
    std::wstring names(size, L'\0');
    if (detail::GetUserPreferredUILanguages(kNames, &count, names.data(), &size) == 0) {
        return {};
    }
    std::vector<std::string> languages;
    for (std::size_t begin = 0; begin < names.size() && names[begin] != L'\0';) {
        std::string language;  // ASCII
        for (; begin < names.size() && names[begin] != L'\0'; ++begin) {
            language += static_cast<char>(names[begin]);
        }
        languages.push_back(language);
        ++begin;
    }
    return languages;
}

}  // namespace qor::platform
