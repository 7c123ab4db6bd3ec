#include "xliff/require_plain_xml.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "source/Encoding.h"

namespace lm_xliff {

namespace {

constexpr std::size_t kDeepest = 64;
constexpr std::size_t kLongestShown = 32;  // of references, in messages

bool IsBlank(char unit) {
    return unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r';
}

bool IsOfReference(char unit) {
    return (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'z') ||
           (unit >= 'A' && unit <= 'Z') || unit == '#';
}

/// Whether "#38" or "#x26" is the number of a character.
bool IsCharacterNumber(std::string_view reference) {
    if (reference.substr(0, 1) != "#") {
        return false;
    }
    const bool isHex = reference.substr(1, 1) == "x";
    const std::string_view digits = reference.substr(isHex ? 2 : 1);
    std::uint32_t code = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, code, isHex ? 16 : 10);
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return read.ec == std::errc() && read.ptr == end && !isSurrogate && code <= 0x10FFFF &&
           (code >= 0x20 || code == '\t' || code == '\n' || code == '\r');
}

/// Goes over the signs of the file; whether they fit together is the library's to say.
class Scan {
public:
    Scan(std::string_view name, std::string_view bytes) : name_(name), bytes_(bytes) {}

    void Run(std::size_t begin) {
        at_ = begin;
        while (at_ < bytes_.size()) {
            const char unit = bytes_[at_];
            if (unit == '<') {
                TakeMarkup(bytes_.substr(at_));
            } else if (depth_ == 0 && !IsBlank(unit)) {
                Fail(at_, "is no XML: text stands outside of the root element");
            } else if (unit == '&') {
                TakeReference();
            } else {
                ++at_;
            }
        }
    }

    [[noreturn]] void Fail(std::size_t at, const std::string& what) const {
        const auto line =
            1 + std::count(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(at), '\n');
        throw std::runtime_error(std::string(name_) + ':' + std::to_string(line) + ": " + what);
    }

private:
    void TakeReference() {
        static constexpr std::array<std::string_view, 5> known = {"amp", "lt", "gt", "quot",
                                                                  "apos"};
        std::size_t end = at_ + 1;
        while (end < bytes_.size() && IsOfReference(bytes_[end])) {
            ++end;
        }
        if (end == bytes_.size()) {
            at_ = end;  // cut off, which the library finds
            return;
        }
        const std::string_view reference = bytes_.substr(at_ + 1, end - at_ - 1);
        const bool isKnown = std::find(known.begin(), known.end(), reference) != known.end();
        if (bytes_[end] != ';' || (!isKnown && !IsCharacterNumber(reference))) {
            const bool isShort = bytes_[end] == ';' && reference.size() <= kLongestShown;
            Fail(at_, (isShort ? "'&" + std::string(reference) + ";'" : "a '&'") +
                          " stands for nothing: write the character itself, or '&amp;' for a '&'");
        }
        at_ = end + 1;
    }

    void TakeMarkup(std::string_view rest) {
        if (rest.substr(0, 4) == "<!--") {
            SkipPast("-->");
        } else if (rest.substr(0, 9) == "<![CDATA[") {
            SkipPast("]]>");
        } else if (rest.substr(0, 2) == "<?") {
            SkipPast("?>");
        } else if (rest.substr(0, 2) == "<!") {
            Fail(at_,
                 "has a document type declaration, which XLIFF files do not have: take it out");
        } else if (rest.substr(0, 2) == "</") {
            depth_ -= depth_ == 0 ? 0 : 1;
            SkipPast(">");
        } else {
            TakeTag();
        }
    }

    /// A ">" may stand in quotes.
    void TakeTag() {
        const std::size_t begin = at_;
        if (depth_ == 0 && hasRoot_) {
            Fail(begin, "is no XML: a second root element begins");
        }
        hasRoot_ = true;
        char quote = '\0';
        while (++at_ < bytes_.size()) {
            const char unit = bytes_[at_];
            if (unit == '&') {
                TakeReference();
                --at_;
            } else if (quote != '\0') {
                quote = unit == quote ? '\0' : quote;
            } else if (unit == '"' || unit == '\'') {
                quote = unit;
            } else if (unit == '>') {
                break;
            }
        }
        if (at_ == bytes_.size()) {
            return;
        }
        if (bytes_[at_ - 1] != '/' && ++depth_ > kDeepest) {
            Fail(begin, "more than " + std::to_string(kDeepest) + " elements are in one another");
        }
        ++at_;
    }

    void SkipPast(std::string_view end) {
        const std::size_t found = bytes_.find(end, at_);
        at_ = found == std::string_view::npos ? bytes_.size() : found + end.size();
    }

    std::string_view name_;
    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t depth_ = 0;
    bool hasRoot_ = false;
};

}  // namespace

void RequirePlainXml(std::string_view name, std::string_view bytes) {
    const lm_source::Encoding encoding = lm_source::EncodingOf(bytes);
    if (encoding.isUtf16) {
        throw std::runtime_error("'" + std::string(name) + "' is not UTF-8: save it as UTF-8");
    }
    Scan scan(name, bytes);
    if (!encoding.illFormed.empty()) {
        scan.Fail(encoding.illFormed.front().begin,
                  "is not UTF-8, or not whole: save the file as UTF-8");
    }
    const auto isControl = [](char unit) {
        return static_cast<unsigned char>(unit) < 0x20 && !IsBlank(unit);
    };
    const auto control = static_cast<std::size_t>(
        std::find_if(bytes.begin(), bytes.end(), isControl) - bytes.begin());
    if (control != bytes.size()) {
        scan.Fail(control, "has a control character, which XML files cannot hold");
    }
    scan.Run(encoding.content.begin);
}

}  // namespace lm_xliff
