// The letter case of keys.
#pragma once

#include <locale>
#include <string_view>

namespace LocalizationManager::Text {

/// Lower-cases UTF-16 units one by one, with the wide-character mapping that the process's global
/// locale has when the object is made. Immutable; may be used from any number of threads.
class LowerCaseMapping {
public:
    LowerCaseMapping();
    LowerCaseMapping(const LowerCaseMapping&) = delete;
    LowerCaseMapping& operator=(const LowerCaseMapping&) = delete;

    /// @param output  receives as many units; may be where the key stands.
    void Map(std::u16string_view key, char16_t* output) const;

private:
    char16_t Ask(char16_t unit) const;

    std::locale locale_;
    const std::ctype<wchar_t>& letters_;
    bool mapsAsciiAsUsual_ = false;  // then keys, which are ASCII, need not ask the locale
};

}  // namespace LocalizationManager::Text
