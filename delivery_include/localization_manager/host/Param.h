// A parameter of one call for a text.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
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
    /// @param value  a text in UTF-8; a whole number, in the form that plural forms take; or what people want to
    ///               read by their culture's conventions only, as `$share.percent` or `$taken.date`: a
    ///               double, which is given as digits with a point, or a time of the system's clock, given
    ///               in whole seconds since 1970. Anything else the host turns into a text first.
    template <class Value>
    Param(std::string_view name, const Value& value) : name_(name) {
        if constexpr (std::is_convertible_v<const Value&, std::string_view>) {
            kind_ = Kind::Text;
            text_ = value;
        } else if constexpr (std::is_same_v<Value, double>) {
            kind_ = Kind::Fraction;
            fraction_ = value;
        } else if constexpr (IsTime(static_cast<const Value*>(nullptr))) {
            *this = Param(
                name, std::chrono::floor<std::chrono::seconds>(value.time_since_epoch()).count());
        } else {
            static_assert(std::is_integral_v<Value> && !std::is_same_v<Value, bool> &&
                              !std::is_same_v<Value, char> && !std::is_same_v<Value, wchar_t> &&
                              !std::is_same_v<Value, char16_t> && !std::is_same_v<Value, char32_t>,
                          "a parameter is a text in UTF-8, a whole number, a double or a time");
            kind_ = value < 0 ? Kind::Negative : Kind::Positive;
            number_ = static_cast<std::uint64_t>(value);
        }
    }

    std::string_view name() const noexcept { return name_; }
    bool IsNumber() const noexcept { return kind_ != Kind::Text; }

    /// Replaces `result` by the value's text; the string keeps its allocator.
    void Write(qor::string16_t& result) const {
        constexpr std::size_t kMostOfWhole = 20;      // characters of 64 bits with their sign
        constexpr std::size_t kMostOfFraction = 350;  // without an exponent
        switch (kind_) {
            case Kind::Text: {
                const detail::SmallText text(text_);
                result.assign(text.view().data(), text.view().size());
                break;
            }
            case Kind::Positive:
                WriteDigits<kMostOfWhole>(result, number_);
                break;
            case Kind::Negative:
                WriteDigits<kMostOfWhole>(result, static_cast<std::int64_t>(number_));
                break;
            case Kind::Fraction:
                WriteDigits<kMostOfFraction>(result, fraction_, std::chars_format::fixed);
                break;
        }
    }

private:
    enum class Kind : std::uint8_t { Text, Positive, Negative, Fraction };

    template <class Duration>
    static constexpr bool IsTime(
        const std::chrono::time_point<std::chrono::system_clock, Duration>* /*unused*/) {
        return true;
    }
    static constexpr bool IsTime(const void* /*unused*/) { return false; }

    /// @param number  with what `std::to_chars` takes behind it.
    template <std::size_t kMost, class... Number>
    static void WriteDigits(qor::string16_t& result, Number... number) {
        std::array<char, kMost> digits;  // NOLINT(*-member-init): written as far as it is read
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number...);
        std::array<char16_t, kMost> units;  // NOLINT(*-member-init): as above
        const auto size = static_cast<std::size_t>(end.ptr - digits.data());
        std::copy_n(digits.data(), size, units.data());
        result.assign(units.data(), size);
    }

    std::string_view name_;
    std::string_view text_;
    std::uint64_t number_ = 0;
    double fraction_ = 0;
    Kind kind_ = Kind::Text;
};

}  // namespace localization_manager::host
