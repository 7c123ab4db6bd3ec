#include "source/Scanner.h"

#include <algorithm>
#include <cstddef>
#include <cwctype>

#include "source/Encoding.h"

namespace lm_source {

namespace {

bool IsLetter(char unit) noexcept {
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || unit == '_';
}

bool ContinuesName(char unit) noexcept {
    return IsLetter(unit) || (unit >= '0' && unit <= '9') || unit == '.';
}

bool IsLineBreak(char unit) noexcept {
    return unit == '\n' || unit == '\r';
}

}  // namespace

std::uint32_t NameLength(std::string_view text) noexcept {
    if (text.empty() || !IsLetter(text.front())) {
        return 0;
    }
    const auto* const end = std::find_if_not(text.begin(), text.end(), &ContinuesName);
    return static_cast<std::uint32_t>(end - text.begin());
}

Scanner::Scanner(std::string_view bytes, Range content) : bytes_(bytes), end_(content.end) {
    for (std::size_t unit = 0; unit < isSpace_.size(); ++unit) {
        isSpace_[unit] = std::iswspace(static_cast<std::wint_t>(unit)) != 0;
    }
}

std::uint32_t Scanner::SkipOneSpace(std::uint32_t at) const {
    if (at == end_) {
        return at;
    }
    const Character next = FirstCharacter(bytes_.substr(at, end_ - at));
    return std::iswspace(next.firstUnit) != 0 ? at + next.bytes : at;
}

std::uint32_t Scanner::SkipWideSpace(std::uint32_t at) const {
    const std::uint32_t next = SkipOneSpace(at);
    return next != at ? SkipSpace(next) : at;
}

std::uint32_t Scanner::SkipBlanks(std::uint32_t at) const {
    while (!IsLineBreak(At(at))) {
        const std::uint32_t next = SkipOneSpace(at);
        if (next == at) {
            break;
        }
        at = next;
    }
    return at;
}

std::uint32_t Scanner::SkipSpaceAndComments(std::uint32_t at) const {
    for (at = SkipSpace(at); At(at) == ';'; at = SkipSpace(at)) {
        at = LineEnd(at);
    }
    return at;
}

bool Scanner::BeginsName(std::uint32_t at) const noexcept {
    return IsLetter(At(at));
}

std::uint32_t Scanner::FindQuote(std::uint32_t at) const noexcept {
    const std::string_view text = bytes_.substr(0, end_);
    std::size_t quote = text.find('\'', at);
    std::size_t backslash = text.substr(0, quote).find('\\', at);
    while (backslash != std::string_view::npos) {
        const std::size_t next = backslash + EscapeAt(text.substr(backslash)).size;
        if (next > quote) {
            quote = text.find('\'', next);
        }
        backslash = text.substr(0, quote).find('\\', next);
    }
    return static_cast<std::uint32_t>(std::min<std::size_t>(quote, end_));
}

std::uint32_t Scanner::LineEnd(std::uint32_t at) const noexcept {
    while (at < end_ && !IsLineBreak(bytes_[at])) {
        ++at;
    }
    return at;
}

bool Scanner::HasLineBreak(Range range) const noexcept {
    const std::string_view text = bytes_.substr(range.begin, range.size());
    return std::any_of(text.begin(), text.end(), &IsLineBreak);
}

std::uint32_t Scanner::NextEntryLine(std::uint32_t at) const {
    for (at = LineEnd(at); at < end_; at = LineEnd(at)) {
        ++at;  // behind the CR of a CR LF stands an empty line, which does no harm
        const std::uint32_t key = SkipBlanks(at);
        const std::uint32_t keyEnd = SkipName(key);
        if (keyEnd != key && At(SkipBlanks(keyEnd)) == '=') {
            return at;
        }
    }
    return end_;
}

}  // namespace lm_source
