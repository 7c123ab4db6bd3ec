#include "require_plain_po.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include "source/Encoding.h"

namespace localize_po {

namespace {

/// The value of an escape for a byte, "\ooo" or "\xhh"; 1 of any other.
/// @param escape  begins with a backslash.
unsigned long ByteOf(const std::string& escape) {
    const bool isHex = escape.substr(1, 1) == "x";
    const char* const begin = escape.c_str() + (isHex ? 2 : 1);
    const std::string digits(begin,
                             std::strspn(begin, isHex ? "0123456789abcdefABCDEF" : "01234567"));
    return digits.empty() ? 1 : std::strtoul(digits.substr(0, 3).c_str(), nullptr, isHex ? 16 : 8);
}

/// The library would take what such escapes stand for as it is.
void RequireTextsInEscapes(const std::string& path, std::string_view bytes) {
    std::size_t number = 0;
    while (!bytes.empty()) {
        ++number;
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        for (std::size_t at = line.substr(0, 1) == "#" ? line.size() : 0;
             (at = line.find('\\', at)) < line.size(); at += 2) {
            const std::string escape(line.substr(at, 5));
            const unsigned long byte = ByteOf(escape);
            if (byte == 0 || byte > 127) {
                throw std::runtime_error(path + ':' + std::to_string(number) + ": '" +
                                         escape.substr(0, 4) + "' stands for what no text holds");
            }
        }
    }
}

}  // namespace

void RequirePlainPo(const std::string& path, const std::string& bytes) {
    const lm_source::Encoding encoding = lm_source::EncodingOf(bytes);
    if (encoding.isUtf16 || !encoding.illFormed.empty()) {
        throw std::runtime_error("'" + path +
                                 "' is not UTF-8: convert it with 'msgconv -t UTF-8', or save it "
                                 "as UTF-8");
    }
    if (encoding.content.begin != 0) {
        throw std::runtime_error("'" + path +
                                 "' begins with a byte-order mark, which PO files do " +
                                 "not have: save it without");
    }
    if (bytes.find('\0') != std::string::npos) {
        throw std::runtime_error("'" + path + "' has a zero character and is no PO file");
    }
    RequireTextsInEscapes(path, bytes);
}

}  // namespace localize_po
