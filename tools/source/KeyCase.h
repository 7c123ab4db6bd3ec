// The letter case of keys, which are ASCII.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lm_source {

/// Lower-cases as the engine does, with what the global locale is when the object is made.
class KeyCase {
public:
    KeyCase();

    /// As UTF-8.
    std::string Lower(std::string_view key) const;

    bool AreEqual(std::string_view left, std::string_view right) const noexcept;

    /// The same for keys that are equal.
    std::uint32_t HashOf(std::string_view key) const noexcept;

private:
    char16_t LowerUnit(char unit) const noexcept {
        return lower_[static_cast<unsigned char>(unit) & 0x7FU];
    }

    std::array<char16_t, 128> lower_{};
};

}  // namespace lm_source
