#include "plural/cldr.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <sstream>
#include <utility>

#include "plural/CldrRow.h"
#include "plural/number_ranges.h"
#include "plural/parse_rule.h"

namespace lm_plural {

namespace {

/// Cultures are named "language[-region[-variant]]", and languages may have a "-" themselves.
const CldrRow* RowOf(std::string_view culture) {
    const CldrRow* best = nullptr;
    std::size_t length = 0;
    for (std::size_t row = 0; row < kCldrRowCount; ++row) {
        const std::string_view name = kCldrRows[row].culture;
        const bool isMeant = culture.substr(0, name.size()) == name &&
                             (culture.size() == name.size() || culture[name.size()] == '-');
        if (isMeant && name.size() > length) {
            best = &kCldrRows[row];
            length = name.size();
        }
    }
    return best;
}

std::vector<std::string> Words(const char* text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

/// The categories of numbers, by place in the row.
std::vector<std::size_t> CategoriesOf(const CldrRow& row,
                                      const std::vector<std::uint64_t>& numbers) {
    const std::string_view text(row.conditions);
    const PluralRule rule(ParseRule(std::u16string(text.begin(), text.end())));
    const std::size_t other = Words(row.categories).size() - 1;
    std::vector<std::size_t> categories;
    categories.reserve(numbers.size());
    for (const std::uint64_t number : numbers) {
        categories.push_back(rule.FormOf(number).value_or(other));
    }
    return categories;
}

constexpr std::size_t kSlots = 6;  // there are no more forms or categories

/// Which category belongs to each form. Small numbers tell more: large ones have rules of their own.
std::array<std::size_t, kSlots> Match(const PluralRule& rule,
                                      const std::vector<std::size_t>& categories,
                                      const std::vector<std::uint64_t>& numbers) {
    std::array<std::array<double, kSlots>, kSlots> counts{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (const auto form = rule.FormOf(numbers[i])) {
            counts[*form][categories[i]] += 1 / (1 + static_cast<double>(numbers[i]));
        }
    }
    std::array<std::size_t, kSlots> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    auto best = order;
    double most = 0;
    do {
        double agreed = 0;
        for (std::size_t form = 0; form < kSlots; ++form) {
            agreed += counts[form][order[form]];
        }
        if (agreed > most) {
            most = agreed;
            best = order;
        }
    } while (std::next_permutation(order.begin(), order.end()));
    return best;
}

}  // namespace

std::optional<std::vector<CldrDifference>> CompareWithCldr(
    const PluralRule& rule, std::string_view culture, const std::vector<std::uint64_t>& numbers) {
    const CldrRow* const row = RowOf(culture);
    if (row == nullptr) {
        return std::nullopt;
    }
    const std::vector<std::size_t> categories = CategoriesOf(*row, numbers);
    const auto categoryOf = Match(rule, categories, numbers);
    std::map<std::pair<std::size_t, std::optional<std::size_t>>, std::vector<std::uint64_t>> found;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto form = rule.FormOf(numbers[i]);
        if (!form || categoryOf[*form] != categories[i]) {
            found[{categories[i], form}].push_back(numbers[i]);
        }
    }
    const std::vector<std::string> names = Words(row->categories);
    std::vector<CldrDifference> differences;
    differences.reserve(found.size());
    for (auto& [choice, different] : found) {
        differences.push_back({names[choice.first], choice.second, std::move(different)});
    }
    return differences;
}

std::vector<std::string> CategoryNames(const PluralRule& rule, std::string_view culture) {
    const CldrRow* const row = RowOf(culture);
    std::vector<std::string> categories;
    std::array<std::size_t, kSlots> categoryOf{};
    if (row != nullptr) {
        categories = Words(row->categories);
        categoryOf = Match(rule, CategoriesOf(*row, TellingNumbers()), TellingNumbers());
    }
    std::vector<std::string> names;
    for (std::size_t form = 0; form < std::max<std::size_t>(rule.FormCount(), 1); ++form) {
        const bool isKnown = form < kSlots && categoryOf[form] < categories.size();
        names.push_back(isKnown ? categories[categoryOf[form]] : "form" + std::to_string(form + 1));
    }
    return names;
}

}  // namespace lm_plural
