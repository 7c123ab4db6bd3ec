#include "MessageUtf8.h"

namespace LocalizationManager::Text {

namespace {

constexpr char16_t kTwoBytes = 0x80;  // the first unit that takes so many
constexpr char16_t kThreeBytes = 0x800;

constexpr std::size_t Utf8Size(char16_t unit) noexcept {
    return unit < kTwoBytes ? 1 : unit < kThreeBytes ? 2 : 3;
}

/// @return behind what was written.
char* Encode(char16_t unit, char* output) noexcept {
    const auto follower = [](unsigned bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (unit < kTwoBytes) {
        *output++ = static_cast<char>(unit);
        return output;
    }
    if (unit < kThreeBytes) {
        *output++ = static_cast<char>(0xC0U | unit >> 6U);
    } else {
        *output++ = static_cast<char>(0xE0U | unit >> 12U);
        *output++ = follower(unit >> 6U);
    }
    *output++ = follower(unit);
    return output;
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
    std::string encoded;
    AppendUtf8(encoded, text);
    return encoded;
}

void AppendUtf8(std::string& output, std::u16string_view text) {
    const std::size_t before = output.size();
    output.resize(before + Utf8Size(text));
    char* end = output.data() + before;
    for (const char16_t unit : text) {
        end = Encode(unit, end);
    }
}

std::size_t Utf8Size(std::u16string_view text) noexcept {
    std::size_t size = 0;
    for (const char16_t unit : text) {
        size += Utf8Size(unit);
    }
    return size;
}

}  // namespace LocalizationManager::Text
