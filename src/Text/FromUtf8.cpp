#include "FromUtf8.h"

#include "Platform.h"

namespace LocalizationManager::Text {

std::u16string FromUtf8(std::string_view text) {
    std::u16string decoded(text.size(), u'\0');
    decoded.resize(Platform::DecodeUtf8(text, decoded.data()));
    return decoded;
}

}  // namespace LocalizationManager::Text
