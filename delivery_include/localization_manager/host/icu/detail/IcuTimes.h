// Dates and times of day of one culture.
#pragma once

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "localization_manager/host/icu/detail/icu_failures.h"

namespace localization_manager::host::detail {

/// Takes whole seconds since the beginning of 1970 in UTC, and what ISO 8601 writes: a moment,
/// "2024-05-01T13:30:00Z" or with "+02:00", and a day, "2024-05-01", which is the same in all time zones and
/// has no time of day. May be used from several threads at once.
class IcuTimes {
public:
    IcuTimes(const ::icu::Locale& locale, const ::icu::TimeZone& zone)
        : date_(::icu::DateFormat::createDateInstance(::icu::DateFormat::kMedium, locale)),
          day_(::icu::DateFormat::createDateInstance(::icu::DateFormat::kMedium, locale)),
          time_(::icu::DateFormat::createTimeInstance(::icu::DateFormat::kShort, locale)),
          isoDay_(IsoFormat(u"yyyy-MM-dd")),
          isoMoment_(IsoFormat(u"yyyy-MM-dd'T'HH:mm:ssXXX")) {
        if (!date_ || !day_ || !time_) {
            throw std::runtime_error("ICU cannot write dates: its data may be missing");
        }
        date_->setTimeZone(zone);
        time_->setTimeZone(zone);
        day_->setTimeZone(*::icu::TimeZone::getGMT());
    }

    ::icu::UnicodeString Date(std::string_view value) const {
        UDate at = 0;
        ::icu::UnicodeString text;
        return Parse(*isoDay_, value, at) ? day_->format(at, text)
                                          : date_->format(MomentOf(value), text);
    }

    ::icu::UnicodeString Time(std::string_view value) const {
        UDate at = 0;
        if (Parse(*isoDay_, value, at)) {
            throw Refused(value, "is a day, which has no time");
        }
        ::icu::UnicodeString text;
        return time_->format(MomentOf(value), text);
    }

private:
    /// Of the years 1 to 9999.
    static constexpr std::int64_t kFirstSecond = -62'135'596'800;
    static constexpr std::int64_t kLastSecond = 253'402'300'799;

    static std::unique_ptr<::icu::DateFormat> IsoFormat(const char16_t* pattern) {
        UErrorCode status = U_ZERO_ERROR;
        auto format = std::make_unique<::icu::SimpleDateFormat>(::icu::UnicodeString(pattern),
                                                                ::icu::Locale::getRoot(), status);
        CheckIcu(status, "read dates");
        format->setLenient(false);
        format->setTimeZone(*::icu::TimeZone::getGMT());
        return format;
    }

    /// @return whether all of it is of the form.
    static bool Parse(const ::icu::DateFormat& format, std::string_view value, UDate& at) {
        constexpr std::size_t kMostCharacters = 40;
        constexpr std::size_t kYear = 4;
        if (value.size() > kMostCharacters || value.find('-') != kYear) {
            return false;
        }
        const ::icu::UnicodeString text =
            ::icu::UnicodeString::fromUTF8({value.data(), static_cast<std::int32_t>(value.size())});
        ::icu::ParsePosition end(0);
        at = format.parse(text, end);
        return end.getIndex() == text.length() && end.getErrorIndex() < 0;
    }

    /// Parts of a second are nothing that anybody is shown.
    static std::string WithoutFraction(std::string_view value) {
        const std::size_t point = value.find('.');
        const std::size_t end = value.find_first_not_of("0123456789", point + 1);
        std::string text(value.substr(0, point));
        return end < value.size() && point < value.size() ? text.append(value.substr(end)) : text;
    }

    UDate MomentOf(std::string_view value) const {
        const std::string text = WithoutFraction(value);
        std::int64_t seconds = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, seconds);
        if (error == std::errc() && stop == end && seconds >= kFirstSecond &&
            seconds <= kLastSecond) {
            return static_cast<UDate>(seconds) * U_MILLIS_PER_SECOND;
        }
        UDate at = 0;
        if (!Parse(*isoMoment_, text, at)) {
            throw Refused(
                value,
                "is no time: give seconds since 1970, '2024-05-01T13:30:00Z' or '2024-05-01'");
        }
        return at;
    }

    std::unique_ptr<::icu::DateFormat> date_;
    std::unique_ptr<::icu::DateFormat> day_;  // of what has no time zone
    std::unique_ptr<::icu::DateFormat> time_;
    std::unique_ptr<const ::icu::DateFormat> isoDay_;
    std::unique_ptr<const ::icu::DateFormat> isoMoment_;
};

}  // namespace localization_manager::host::detail
