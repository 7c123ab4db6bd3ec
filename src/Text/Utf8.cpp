#include "Utf8.h"

#include <boost/regex/pending/unicode_iterator.hpp>

#include "Platform.h"

namespace LocalizationManager::Text {

std::string ToUtf8(std::u16string_view text) {
    const std::u32string units(text.begin(), text.end());
    using Encoder = boost::u32_to_u8_iterator<std::u32string::const_iterator, char>;
    return std::string(Encoder(units.begin()), Encoder(units.end()));
}

std::u16string FromUtf8(std::string_view text) {
    std::u16string decoded(text.size(), u'\0');
    decoded.resize(Platform::DecodeUtf8(text, decoded.data()));
    return decoded;
}

}  // namespace LocalizationManager::Text
