#include "plural/number_ranges.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace lm_plural {

namespace {

/// All numbers up to here are looked at.
constexpr std::uint64_t kLast = 1000;

}  // namespace

const std::vector<std::uint64_t>& TellingNumbers() {
    static const std::vector<std::uint64_t> numbers = [] {
        std::vector<std::uint64_t> all(kLast + 1);
        std::iota(all.begin(), all.end(), 0U);
        for (const std::uint64_t further : {1'000'000U, 2'000'000U, 3'000'000U}) {
            all.push_back(further);
        }
        return all;
    }();
    return numbers;
}

std::vector<std::uint64_t> NumbersOf(const PluralRule& rule, std::size_t form) {
    const std::vector<std::uint64_t>& numbers = TellingNumbers();
    std::vector<std::uint64_t> chosen;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(chosen),
                 [&](std::uint64_t number) { return rule.FormOf(number) == form; });
    return chosen;
}

std::string RangesText(const std::vector<std::uint64_t>& numbers) {
    constexpr std::size_t kMost = 6;
    std::string text;
    std::size_t count = 0;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
            ++last;
        }
        const bool isOpen = numbers[last] == kLast;
        if (isOpen || count == kMost) {
            return text +
                   (isOpen && count < kMost
                        ? (text.empty() ? "" : ", ") + std::to_string(numbers[i])
                        : "") +
                   " and on";
        }
        text += (text.empty() ? "" : ", ") + std::to_string(numbers[i]);
        if (last != i) {
            text += (last == i + 1 ? ", " : " to ") + std::to_string(numbers[last]);
        }
        ++count;
        i = last + 1;
    }
    return text.empty() ? "no number" : text;
}

}  // namespace lm_plural
