// Names such as "count.number": the value of another parameter, as people of a culture write it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace localization_manager::host {

/// What a value is written as.
enum class ValueFormat { Number, Percent, Currency, Date, Time };

/// A derived name taken apart. Programs supply the parameter alone, "count"; texts may ask for "count.number".
struct DerivedParam {
    std::string_view param;
    ValueFormat format;

    /// @param name  as a text writes it after "$"; letter case counts.
    /// @return nothing for a name that stands for itself.
    static std::optional<DerivedParam> Split(std::string_view name) noexcept {
        static constexpr std::array<std::pair<std::string_view, ValueFormat>, 5> kFormats{
            {{"number", ValueFormat::Number},
             {"percent", ValueFormat::Percent},
             {"currency", ValueFormat::Currency},
             {"date", ValueFormat::Date},
             {"time", ValueFormat::Time}}};
        const std::size_t dot = name.rfind('.');
        if (dot == std::string_view::npos || dot == 0) {
            return std::nullopt;
        }
        for (const auto& [word, format] : kFormats) {
            if (name.substr(dot + 1) == word) {
                return DerivedParam{name.substr(0, dot), format};
            }
        }
        return std::nullopt;
    }
};

/// The parameter that a program supplies for a text's name: "count" for "count.number" and for "count".
inline std::string_view SuppliedParam(std::string_view name) noexcept {
    const std::optional<DerivedParam> derived = DerivedParam::Split(name);
    return derived ? derived->param : name;
}

}  // namespace localization_manager::host
