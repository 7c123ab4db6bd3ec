// Numbers, percents and amounts of money of one culture.
#pragma once

#include <unicode/currunit.h>
#include <unicode/locid.h>
#include <unicode/nounit.h>
#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "localization_manager/host/icu/detail/icu_failures.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host::detail {

/// May be used from several threads at once.
class IcuNumbers {
public:
    /// @param currency  of amounts without one; may be empty.
    IcuNumbers(const ::icu::Locale& locale, std::string currency)
        : plain_(::icu::number::NumberFormatter::withLocale(locale)),
          decimal_(plain_.precision(::icu::number::Precision::maxFraction(kMostDecimals))),
          percent_(plain_.unit(::icu::NoUnit::percent())
                       .scale(::icu::number::Scale::powerOfTen(2))
                       .precision(::icu::number::Precision::integer())),
          currency_(std::move(currency)) {}

    ::icu::UnicodeString Decimal(std::string_view value) const { return Write(decimal_, value); }
    ::icu::UnicodeString Percent(std::string_view value) const { return Write(percent_, value); }

    /// @param value  "12.50 EUR", or "12.50" in the usual currency.
    ::icu::UnicodeString Amount(std::string_view value) const {
        const std::size_t blank = value.rfind(' ');
        if (blank != std::string_view::npos) {
            return Write(Currency(value.substr(blank + 1)), value.substr(0, blank));
        }
        if (currency_.empty()) {
            throw Refused(value, "has no currency: give '12.50 EUR', or IcuOptions::currency");
        }
        return Write(Currency(currency_), value);
    }

    /// @throws std::invalid_argument for what is no currency of any time.
    static void RequireCurrency(std::string_view code) {
        UErrorCode status = U_ZERO_ERROR;
        if (code.size() != kCodeSize || !std::all_of(code.begin(), code.end(), IsCapital) ||
            ucurr_isAvailable(ToUtf16(code).c_str(), -DBL_MAX, DBL_MAX, &status) == 0) {
            throw Refused(code, "is no currency: write its code, such as EUR");
        }
    }

private:
    using Formatter = ::icu::number::LocalizedNumberFormatter;

    static constexpr int kMostDecimals = 3;  // as in the patterns of all cultures
    static constexpr std::size_t kCodeSize = 3;
    static constexpr std::size_t kMostCharacters = 400;  // more than any `double` has

    static bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }
    static bool IsDigit(char digit) { return digit >= '0' && digit <= '9'; }

    /// Whether it has digits, perhaps a sign in front and a point. ICU would take exponents as well, and
    /// write out as many zeros as they say.
    static bool IsDecimal(std::string_view value) {
        const bool isBrief = value.size() <= kMostCharacters;
        if (!value.empty() && (value.front() == '-' || value.front() == '+')) {
            value.remove_prefix(1);
        }
        const auto digits = std::count_if(value.begin(), value.end(), IsDigit);
        const auto points = std::count(value.begin(), value.end(), '.');
        return isBrief && digits > 0 && points <= 1 &&
               static_cast<std::size_t>(digits + points) == value.size();
    }

    static ::icu::UnicodeString Write(const Formatter& formatter, std::string_view value) {
        if (!IsDecimal(value)) {
            throw Refused(value, "is no number: write digits, and a point before decimals");
        }
        UErrorCode status = U_ZERO_ERROR;
        const ::icu::number::FormattedNumber number = formatter.formatDecimal(
            {value.data(), static_cast<std::int32_t>(value.size())}, status);
        CheckIcu(status, "write a number");
        ::icu::UnicodeString text = number.toString(status);
        CheckIcu(status, "write a number");
        return text;
    }

    /// The formatter of a currency, made once. There are some hundred currencies.
    const Formatter& Currency(std::string_view code) const {
        const std::lock_guard<std::mutex> lock(mutex_);
        const auto known = currencies_.find(code);
        if (known != currencies_.end()) {
            return known->second;
        }
        RequireCurrency(code);
        UErrorCode status = U_ZERO_ERROR;
        const ::icu::CurrencyUnit unit(::icu::StringPiece(code.data(), kCodeSize), status);
        CheckIcu(status, "use a currency");
        return currencies_.emplace(code, plain_.unit(unit)).first->second;
    }

    const Formatter plain_;
    const Formatter decimal_;
    const Formatter percent_;
    const std::string currency_;
    mutable std::mutex mutex_;  // for the currencies; what is found there stays
    mutable std::map<std::string, Formatter, std::less<>> currencies_;
};

}  // namespace localization_manager::host::detail
