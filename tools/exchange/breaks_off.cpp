#include "exchange/breaks_off.h"

#include <string_view>

namespace lm_exchange {

namespace {

bool EndsWith(const std::string& text, char unit) {
    return !text.empty() && text.back() == unit;
}

}  // namespace

bool BreaksOff(const std::string& text, const std::string& whole, const std::string& reference,
               bool isFurtherLine) {
    if (text.empty()) {
        constexpr std::size_t kShort = 60;  // too short for several lines, unless it has some
        return whole.size() > kShort || whole.find('\n') != std::string::npos;
    }
    // Editors part texts at blanks, signs, and between characters of Asia.
    const char end = text.back();
    const bool isAtBreak = std::string_view(" \n\t-/").find(end) != std::string_view::npos ||
                           static_cast<unsigned char>(end) > 127;
    const bool isStart = whole.size() > text.size() && whole.compare(0, text.size(), text) == 0;
    const bool isOddEnd =
        (end == ' ' || end == '\n') && !EndsWith(whole, end) && !EndsWith(reference, end);
    return isFurtherLine && ((isAtBreak && isStart) || isOddEnd);
}

}  // namespace lm_exchange
