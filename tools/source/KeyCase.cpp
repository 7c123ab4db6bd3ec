#include "source/KeyCase.h"

#include <algorithm>
#include <numeric>

#include "LowerCaseMapping.h"
#include "localization_manager/host/text.h"

namespace lm_source {

KeyCase::KeyCase() {
    std::array<char16_t, 128> units{};
    std::iota(units.begin(), units.end(), u'\0');
    LocalizationManager::Text::LowerCaseMapping().Map({units.data(), units.size()}, lower_.data());
}

std::string KeyCase::Lower(std::string_view key) const {
    std::u16string lower(key.size(), u'\0');
    std::transform(key.begin(), key.end(), lower.begin(),
                   [this](char unit) { return LowerUnit(unit); });
    return localization_manager::host::ToUtf8(lower);
}

bool KeyCase::AreEqual(std::string_view left, std::string_view right) const noexcept {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [this](char a, char b) { return LowerUnit(a) == LowerUnit(b); });
}

std::uint32_t KeyCase::HashOf(std::string_view key) const noexcept {
    // Fowler, Noll and Vo's, with its high bits, which are the better ones, brought down.
    std::uint32_t hash = 2166136261U;
    for (const char unit : key) {
        hash = (hash ^ LowerUnit(unit)) * 16777619U;
    }
    return hash ^ hash >> 15U;
}

}  // namespace lm_source
