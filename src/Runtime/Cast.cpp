#include "qor/rtl/text/Cast.h"

#include <typeinfo>

#include "Platform.h"

namespace qor::text {

namespace {

template <class Text>
Text OrBadCast(std::optional<Text> converted) {
    if (!converted) {
        throw std::bad_cast();
    }
    return *std::move(converted);
}

}  // namespace

template <>
std::u16string Cast<std::u16string>(std::string_view source) {
    return OrBadCast(Platform::WidenMultibyte(source));
}

template <>
string16_t Cast<string16_t>(std::string_view source) {
    return string16_t(Cast<std::u16string>(source));
}

template <>
std::string Cast<std::string>(std::u16string_view source) {
    return OrBadCast(Platform::NarrowToMultibyte(source));
}

template <>
string8_t Cast<string8_t>(std::u16string_view source) {
    return string8_t(Cast<std::string>(source));
}

}  // namespace qor::text
