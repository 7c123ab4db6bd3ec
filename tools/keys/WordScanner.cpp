#include "keys/WordScanner.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "source/Scanner.h"

namespace lm_keys {

namespace {

bool IsDigit(char unit) {
    return unit >= '0' && unit <= '9';
}

bool ContinuesName(char unit) {
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || IsDigit(unit) ||
           unit == '_' || (unit & '\x80') != 0;
}

}  // namespace

std::vector<Word> WordScanner::Scan() {
    while (at_ < source_.size()) {
        if (!SkipComment() && !ReadLiteral() && !ReadName()) {
            ++at_;
        }
    }
    return std::move(words_);
}

bool WordScanner::SkipBehind(std::string_view end) {
    const std::size_t found = source_.find(end, at_);
    const bool isFound = found != std::string_view::npos;
    at_ = isFound ? found + end.size() : source_.size();
    return isFound;
}

bool WordScanner::SkipComment() {
    if (Begins(language_ == Language::Python ? "#" : "//")) {
        SkipBehind("\n");
    } else if (language_ != Language::Python && Begins("/*")) {
        at_ += 2;
        SkipBehind("*/");
    } else {
        return false;
    }
    return true;
}

bool WordScanner::ReadLiteral() {
    const char quote = source_[at_];
    const bool isLong = language_ == Language::Other && quote == '`';
    if (quote != '"' && quote != '\'' && !isLong) {
        return false;
    }
    std::string_view end = source_.substr(at_, 1);
    const bool mayBeThree =
        language_ == Language::Python || (language_ == Language::Other && quote == '"');
    if (mayBeThree && Begins(std::string(3, quote))) {
        end = source_.substr(at_, 3);
    }
    at_ += end.size();
    const std::size_t begin = at_;
    while (at_ < source_.size() && !Begins(end)) {
        if (source_[at_] == '\n' && end.size() == 1 && !isLong) {
            return true;
        }
        at_ += source_[at_] == '\\' ? 2 : 1;
    }
    if (at_ < source_.size()) {
        AddLiteral(source_.substr(begin, at_ - begin));
    }
    at_ += end.size();
    return true;
}

/// From the quote on: "delimiter(text)delimiter".
void WordScanner::ReadRawLiteral() {
    const std::size_t open = std::min(source_.find('(', at_), source_.size());
    const std::string end = ')' + std::string(source_.substr(at_ + 1, open - at_ - 1)) + '"';
    at_ = std::min(open + 1, source_.size());
    const std::size_t begin = at_;
    if (SkipBehind(end)) {
        AddLiteral(source_.substr(begin, at_ - end.size() - begin));
    }
}

/// A name or a number, with what may stand before a literal.
bool WordScanner::ReadName() {
    if (!ContinuesName(source_[at_])) {
        return false;
    }
    const std::size_t begin = at_;
    const bool hasQuotes = language_ == Language::C && IsDigit(source_[at_]);  // 1'000
    while (at_ < source_.size() &&
           (ContinuesName(source_[at_]) ||
            (hasQuotes && source_[at_] == '\'' && at_ + 1 < source_.size() &&
             ContinuesName(source_[at_ + 1])))) {
        ++at_;
    }
    const std::string_view name = source_.substr(begin, at_ - begin);
    constexpr std::array<std::string_view, 5> kRaw = {"R", "u8R", "uR", "UR", "LR"};
    if (language_ == Language::C && Begins("\"") &&
        std::find(kRaw.begin(), kRaw.end(), name) != kRaw.end()) {
        ReadRawLiteral();
    } else if (language_ == Language::C && IsMember(begin)) {
        words_.push_back({false, name});
    }
    return true;
}

/// Whether a name stands behind ".", "->" or "::".
bool WordScanner::IsMember(std::size_t name) const {
    const std::size_t before = source_.find_last_not_of(" \t\r\n", name == 0 ? 0 : name - 1);
    if (name == 0 || before == std::string_view::npos) {
        return false;
    }
    const std::string_view two = source_.substr(before == 0 ? 0 : before - 1, 2);
    return source_[before] == '.' || two == "->" || two == "::";
}

void WordScanner::AddLiteral(std::string_view text) {
    if (!text.empty() && lm_source::NameLength(text) == text.size()) {
        words_.push_back({true, text});
    }
}

}  // namespace lm_keys
