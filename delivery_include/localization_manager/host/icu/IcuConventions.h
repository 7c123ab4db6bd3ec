// Numbers and dates as ICU, and so CLDR, knows them. The only part of the kit that needs ICU: link
// `localization_manager::host_icu`.
#pragma once

#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/ubidi.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "localization_manager/host/Conventions.h"
#include "localization_manager/host/icu/IcuOptions.h"
#include "localization_manager/host/icu/detail/IcuNumbers.h"
#include "localization_manager/host/icu/detail/IcuTimes.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host {

/// | name | value | Germans read |
/// |---|---|---|
/// | `$count.number` | 1234.5, at most three decimals are shown | 1.234,5 |
/// | `$share.percent` | 0.25 | 25 % |
/// | `$price.currency` | "12.50 EUR", or 12.5 with `IcuOptions::currency` | 12,50 € |
/// | `$taken.date` | a time, seconds since 1970, "2024-05-01T13:30:00Z", or a day: "2024-05-01" | 01.05.2024 |
/// | `$taken.time` | the same, but no day | 15:30 |
///
/// What makes a culture's texts is made once; several threads may use one object.
class IcuConventions final : public Conventions {
public:
    /// @param languageTag  "pt-br". Where ICU does not know the region, the language alone serves, and where it does
    ///                     not know the language, what ICU has for none.
    /// @throws std::invalid_argument for an unknown time zone; std::runtime_error when ICU has no data.
    IcuConventions(const std::string& languageTag, const IcuOptions& options)
        : locale_(LocaleOf(languageTag)),
          numbers_(locale_, options.currency),
          times_(locale_, *TimeZoneOf(options.timeZone)),
          direction_(locale_.isRightToLeft() != 0 ? UBIDI_RTL : UBIDI_LTR),
          isolates_(options.isolates) {}

    void Write(ValueFormat format, qor::string16_t& value) const override {
        const std::string text = ToUtf8(value);
        const ::icu::UnicodeString shown = Shown(format, text);
        value.assign(shown.getBuffer(), static_cast<std::size_t>(shown.length()));
    }

    void Isolate(qor::string16_t& value) const override {
        constexpr char16_t kFirstStrongIsolate = 0x2068;
        constexpr char16_t kPopDirectionalIsolate = 0x2069;
        const UBiDiDirection direction =
            isolates_
                ? ubidi_getBaseDirection(value.data(), static_cast<std::int32_t>(value.size()))
                : UBIDI_NEUTRAL;
        if (direction != UBIDI_NEUTRAL && direction != direction_) {
            value.insert(0, &kFirstStrongIsolate, 1).append(1, kPopDirectionalIsolate);
        }
    }

    /// @param id  empty for the system's.
    /// @throws std::invalid_argument for one that ICU does not know.
    static std::unique_ptr<::icu::TimeZone> TimeZoneOf(const std::string& id) {
        if (id.empty()) {
            return std::unique_ptr<::icu::TimeZone>(::icu::TimeZone::createDefault());
        }
        std::unique_ptr<::icu::TimeZone> zone(
            ::icu::TimeZone::createTimeZone(::icu::UnicodeString::fromUTF8(id)));
        if (*zone == ::icu::TimeZone::getUnknown()) {
            throw std::invalid_argument("ICU knows no time zone '" + id +
                                        "': give a name such as Europe/Berlin");
        }
        return zone;
    }

private:
    static ::icu::Locale LocaleOf(std::string tag) {
        while (!tag.empty()) {
            UErrorCode status = U_ZERO_ERROR;
            ::icu::Locale locale = ::icu::Locale::forLanguageTag(tag, status);
            if (U_SUCCESS(status) && locale.isBogus() == 0) {
                return locale;
            }
            const std::size_t end = tag.rfind('-');
            tag.resize(end != std::string::npos ? end : 0);
        }
        return ::icu::Locale::getRoot();
    }

    ::icu::UnicodeString Shown(ValueFormat format, const std::string& value) const {
        switch (format) {
            case ValueFormat::Number:
                return numbers_.Decimal(value);
            case ValueFormat::Percent:
                return numbers_.Percent(value);
            case ValueFormat::Currency:
                return numbers_.Amount(value);
            case ValueFormat::Date:
                return times_.Date(value);
            case ValueFormat::Time:
                return times_.Time(value);
        }
        throw std::invalid_argument("there is no such format");
    }

    const ::icu::Locale locale_;
    const detail::IcuNumbers numbers_;
    const detail::IcuTimes times_;
    const UBiDiDirection direction_;
    const bool isolates_;
};

/// For `TreeSettings::conventions`.
/// @throws std::invalid_argument for a currency or a time zone that ICU does not know.
inline std::function<std::shared_ptr<const Conventions>(const std::string&)> UseIcu(
    IcuOptions options = {}) {
    IcuConventions::TimeZoneOf(options.timeZone);
    if (!options.currency.empty()) {
        detail::IcuNumbers::RequireCurrency(options.currency);
    }
    return [options = std::move(options)](const std::string& languageTag) {
        return std::make_shared<const IcuConventions>(languageTag, options);
    };
}

}  // namespace localization_manager::host
