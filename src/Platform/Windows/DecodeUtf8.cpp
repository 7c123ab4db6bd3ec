// UTF-8 decoding on Windows.
#include <limits>
#include <stdexcept>

#include "Platform.h"
#include "System.h"

namespace Platform {

std::size_t DecodeUtf8(std::string_view bytes, char16_t* output) {
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    if (bytes.empty()) {
        return 0;
    }
    const int size =
        bytes.size() <= std::numeric_limits<int>::max() ? static_cast<int>(bytes.size()) : 0;
    const int units = ::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size,
                                            reinterpret_cast<wchar_t*>(output), size);
    if (units == 0) {
        throw std::runtime_error("MultiByteToWideChar conversion failed");
    }
    return static_cast<std::size_t>(units);
}

}  // namespace Platform
