#include "Paths.h"

#include <algorithm>
#include <boost/locale/encoding_utf.hpp>

#include "Platform.h"

namespace Platform {

const char16_t kPathSeparator = u'/';

std::u16string NativePath(std::u16string_view path) {
    std::u16string native(path);
    std::replace(native.begin(), native.end(), u'\\', kPathSeparator);
    return native;
}

namespace Posix {

std::optional<std::string> FileName(std::u16string_view path) {
    if (path.find(u'\0') != std::u16string_view::npos) {
        return std::nullopt;
    }
    try {
        return boost::locale::conv::utf_to_utf<char>(path.data(), path.data() + path.size(),
                                                     boost::locale::conv::stop);
    } catch (const boost::locale::conv::conversion_error&) {
        return std::nullopt;
    }
}

}  // namespace Posix

}  // namespace Platform
