#include "qor/rtl/text/Cast.h"

#include <optional>
#include <typeinfo>

#include "Platform.h"
#include "qor/BadAllocation.h"

namespace qor::text {

namespace {

/// What `convert` makes of `source`, its failures as exceptions.
template <class Text, class Source>
Text Converted(std::optional<Text> (*convert)(Source), Source source) try {
    std::optional<Text> converted = convert(source);
    if (!converted) {
        throw std::bad_cast();
    }
    return *std::move(converted);
} catch (const std::bad_alloc&) {
    throw BadAllocation();
}

}  // namespace

template <>
std::u16string Cast<std::u16string>(std::string_view source) {
    return Converted(&Platform::WidenMultibyte, source);
}

template <>
string16_t Cast<string16_t>(std::string_view source) {
    return string16_t(Cast<std::u16string>(source));
}

template <>
std::string Cast<std::string>(std::u16string_view source) {
    return Converted(&Platform::NarrowToMultibyte, source);
}

template <>
string8_t Cast<string8_t>(std::u16string_view source) {
    return string8_t(Cast<std::string>(source));
}

}  // namespace qor::text
