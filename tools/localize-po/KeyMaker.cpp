#include "KeyMaker.h"

#include <algorithm>

#include "printf_phrase.h"
#include "tree/ascii_case.h"

namespace localize_po {

namespace {

constexpr std::size_t kMostWords = 6;
constexpr std::size_t kLongest = 40;

bool IsDigit(char unit) {
    return unit >= '0' && unit <= '9';
}

bool IsWordUnit(char unit) {
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || IsDigit(unit);
}

/// Marks of access keys do not part words.
bool IsMark(char unit) {
    return unit == '_' || unit == '&' || unit == '\'';
}

std::string Words(std::string_view text) {
    std::string words;
    std::size_t count = 0;
    bool isInWord = false;
    for (const char unit : text) {
        if (IsWordUnit(unit)) {
            if (!isInWord && (++count > kMostWords || words.size() > kLongest)) {
                break;
            }
            const bool isSmall = unit >= 'a' && unit <= 'z';
            words += !isInWord && isSmall ? static_cast<char>(unit - 'a' + 'A') : unit;
            isInWord = true;
        } else {
            isInWord = isInWord && IsMark(unit);
        }
    }
    words.resize(std::min(words.size(), kLongest));
    return words.empty() || IsDigit(words.front()) ? "Text" + words : words;
}

std::string TextAlone(std::string_view text) {
    std::string alone;
    for (const auto& part : PhraseOfPrintf(text)) {
        alone += part.kind == lm_exchange::Part::Kind::Text ? part.text : " ";
    }
    return alone;
}

}  // namespace

std::string KeyMaker::Make(std::string_view context, std::string_view text) {
    constexpr std::string_view kParting = "|./:";
    std::string key;
    while (!context.empty()) {
        const std::size_t end = std::min(context.find_first_of(kParting), context.size());
        key += end != 0 ? Words(context.substr(0, end)) + '.' : "";
        context.remove_prefix(std::min(end + 1, context.size()));
    }
    key += Words(TextAlone(text));
    const std::size_t count = ++taken_[lm_tree::LowerAscii(key)];
    return count == 1 ? key : key + '_' + std::to_string(count);  // no other key has a "_"
}

}  // namespace localize_po
