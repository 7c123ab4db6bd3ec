// The letter case of keys.
#pragma once

#include <string_view>

namespace LocalizationManager::Text {

/// Lower-cases UTF-16 units one by one, with the wide-character mapping of the process's global
/// locale. What that makes of ASCII is asked when the object is made: fetching a locale for every
/// key would cost more than finding it. Immutable; may be used from any number of threads.
class LowerCaseMapping {
public:
    LowerCaseMapping();

    /// @param output  receives as many units; may be where the key stands.
    void Map(std::u16string_view key, char16_t* output) const;

    /// Whether "A" to "Z" become "a" to "z", and the rest of ASCII stays.
    bool MapsAsciiAsUsual() const noexcept { return mapsAsciiAsUsual_; }

private:
    bool mapsAsciiAsUsual_;
};

}  // namespace LocalizationManager::Text
