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

    void Run() {
        while ((at_ = bytes_.find_first_of("<&", at_)) < bytes_.size()) {
            if (bytes_[at_] == '&') {
                TakeReference();
            } else {
                TakeMarkup(bytes_.substr(at_));
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
        const std::size_t end = bytes_.find(';', at_);
        const std::string_view reference = bytes_.substr(at_ + 1, end - at_ - 1);
        if (end == std::string_view::npos ||
            (std::find(known.begin(), known.end(), reference) == known.end() &&
             !IsCharacterNumber(reference))) {
            Fail(at_,
                 "'" + std::string(bytes_.substr(at_, std::min<std::size_t>(end - at_ + 1, 12))) +
                     "' stands for nothing: write the character itself, or '&amp;' for a '&'");
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
        if (at_ < bytes_.size() && bytes_[at_ - 1] != '/' && ++depth_ > kDeepest) {
            Fail(begin, "more than " + std::to_string(kDeepest) + " elements are in one another");
        }
    }

    void SkipPast(std::string_view end) {
        const std::size_t found = bytes_.find(end, at_);
        at_ = found == std::string_view::npos ? bytes_.size() : found + end.size();
    }

    std::string_view name_;
    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t depth_ = 0;
};

}  // namespace

void RequirePlainXml(std::string_view name, std::string_view bytes) {
    const lm_source::Encoding encoding = lm_source::EncodingOf(bytes);
    if (encoding.isUtf16 || !encoding.illFormed.empty()) {
        throw std::runtime_error("'" + std::string(name) + "' is not UTF-8: save it as UTF-8");
    }
    Scan scan(name, bytes);
    const auto isControl = [](char unit) {
        return static_cast<unsigned char>(unit) < 0x20 && unit != '\t' && unit != '\n' &&
               unit != '\r';
    };
    const auto control = static_cast<std::size_t>(
        std::find_if(bytes.begin(), bytes.end(), isControl) - bytes.begin());
    if (control != bytes.size()) {
        scan.Fail(control, "has a control character, which XML files cannot hold");
    }
    scan.Run();
}

}  // namespace lm_xliff
