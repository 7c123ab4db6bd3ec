// UTF-8 decoding on POSIX, which has no function of its own for it.
#include "qor/utf8.h"

#include "Platform.h"

namespace Platform {

std::size_t DecodeUtf8(std::string_view bytes, char16_t* output) {
    return static_cast<std::size_t>(qor::DecodeUtf8(bytes, output) - output);
}

}  // namespace Platform
