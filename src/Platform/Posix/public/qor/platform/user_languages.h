// The languages that a user of a POSIX system has chosen: header code, since a host compiles it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace qor::platform {

/// Most wanted first, as the system writes them ("de_AT.UTF-8@euro"); none when nothing is set. As
/// gettext does it: the locale of messages decides, and LANGUAGE, a list, goes before it unless it is "C".
/// No other thread may set environment variables meanwhile.
inline std::vector<std::string> UserLanguages() {
    const auto valueOf = [](const char* name) {
        const char* const value = std::getenv(name);  // NOLINT(*-mt-unsafe): see above
        return std::string(value != nullptr ? value : "");
    };
    std::string locale;
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = locale.empty() ? valueOf(name) : locale;
    }
    if (locale.empty()) {
        return {};
    }
    const std::string plain = locale.substr(0, locale.find('.'));
    std::vector<std::string> languages;
    if (plain != "C" && plain != "POSIX") {
        const std::string list = valueOf("LANGUAGE");
        for (std::size_t begin = 0; begin < list.size();) {
            const std::size_t end = std::min(list.find(':', begin), list.size());
            if (end > begin) {
                languages.push_back(list.substr(begin, end - begin));
            }
            begin = end + 1;
        }
    }
    languages.push_back(std::move(locale));
    return languages;
}

}  // namespace qor::platform
