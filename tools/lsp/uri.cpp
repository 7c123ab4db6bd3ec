#include "lsp/uri.h"

#include <cstddef>

#include "source/Encoding.h"
#include "tree/path_text.h"

namespace lm_lsp {

namespace {

constexpr std::string_view kScheme = "file://";
constexpr std::string_view kDigits = "0123456789ABCDEF";

std::optional<unsigned> DigitOf(char unit) {
    const char upper = unit >= 'a' && unit <= 'f' ? static_cast<char>(unit - 'a' + 'A') : unit;
    const std::size_t digit = kDigits.find(upper);
    return digit != std::string_view::npos ? std::optional(static_cast<unsigned>(digit))
                                           : std::nullopt;
}

/// Empty for what is not UTF-8, or holds a zero: no path does.
std::optional<std::string> Decoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded += text[i];
            continue;
        }
        const auto high = i + 2 < text.size() ? DigitOf(text[i + 1]) : std::nullopt;
        const auto low = high ? DigitOf(text[i + 2]) : std::nullopt;
        if (!low) {
            return std::nullopt;
        }
        decoded += static_cast<char>(*high * 16 + *low);
        i += 2;
    }
    if (decoded.find('\0') != std::string::npos ||
        !lm_source::EncodingOf(decoded).illFormed.empty()) {
        return std::nullopt;
    }
    return decoded;
}

/// "/c:/texts" of a system with drives.
bool HasDrive(std::string_view path) {
    return path.size() >= 3 && path[0] == '/' && path[2] == ':';
}

}  // namespace

std::optional<std::filesystem::path> PathOfUri(std::string_view uri) {
    if (uri.substr(0, kScheme.size()) != kScheme) {
        return std::nullopt;
    }
    auto text = Decoded(uri.substr(kScheme.size()));
    if (!text || text->empty() || text->front() != '/') {
        return std::nullopt;  // of another machine, too
    }
    if (std::filesystem::path::preferred_separator != '/' && HasDrive(*text)) {
        text->erase(0, 1);
        text->front() = static_cast<char>(text->front() & ~0x20);  // editors write either case
    }
    return lm_tree::PathOf(*text).lexically_normal();
}

std::string UriOf(const std::filesystem::path& path) {
    constexpr std::string_view kPlain = "/-._~";
    const std::string text = lm_tree::Utf8Of(path);
    std::string uri(kScheme);
    uri += text.empty() || text.front() != '/' ? "/" : "";
    for (const char unit : text) {
        const bool isPlain = (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') ||
                             (unit >= '0' && unit <= '9') ||
                             kPlain.find(unit) != std::string_view::npos;
        if (isPlain) {
            uri += unit;
        } else {
            const auto byte = static_cast<unsigned char>(unit);
            uri += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
        }
    }
    return uri;
}

}  // namespace lm_lsp
