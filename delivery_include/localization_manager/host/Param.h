// A parameter of one call for a text.
#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "localization_manager/host/detail/SmallText.h"
#include "qor/basic_string_t.h"

namespace localization_manager::host {

/// A name and a value, written `{"count", 3}`. Keeps views: name and text have to live until the call has
/// returned.
class Param {
public:
    /// @param name   as the text writes it after "$", in UTF-8; letter case counts.
    /// @param value  a text in UTF-8, or a whole number, in the form that plural forms take. Anything else
    ///               the host turns into a text first: how is a matter of the culture.
    template <class Value>
    Param(std::string_view name, const Value& value) : name_(name) {
        if constexpr (std::is_convertible_v<const Value&, std::string_view>) {
            text_ = value;
        } else {
            static_assert(std::is_integral_v<Value> && !std::is_same_v<Value, bool> &&
                              !std::is_same_v<Value, char> && !std::is_same_v<Value, wchar_t> &&
                              !std::is_same_v<Value, char16_t> && !std::is_same_v<Value, char32_t>,
                          "a parameter is a text in UTF-8 or a whole number");
            isNumber_ = true;
            isNegative_ = value < 0;
            number_ = static_cast<std::uint64_t>(value);
        }
    }

    std::string_view name() const noexcept { return name_; }

    /// Replaces `result` by the value's text; the string keeps its allocator.
    void Write(qor::string16_t& result) const {
        if (!isNumber_) {
            const detail::SmallText text(text_);
            result.assign(text.view().data(), text.view().size());
            return;
        }
        constexpr std::size_t kMostCharacters = 20;  // of a number of 64 bits with its sign
        std::array<char, kMostCharacters> digits{};
        const auto end = isNegative_
                             ? std::to_chars(digits.data(), digits.data() + digits.size(),
                                             static_cast<std::int64_t>(number_))
                             : std::to_chars(digits.data(), digits.data() + digits.size(), number_);
        std::array<char16_t, kMostCharacters> units{};
        const auto size = static_cast<std::size_t>(end.ptr - digits.data());
        for (std::size_t i = 0; i < size; ++i) {
            units[i] = static_cast<char16_t>(digits[i]);
        }
        result.assign(units.data(), size);
    }

private:
    std::string_view name_;
    std::string_view text_;
    std::uint64_t number_ = 0;
    bool isNumber_ = false;
    bool isNegative_ = false;
};

}  // namespace localization_manager::host
