// A text in UTF-16 that is made for a moment.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "qor/decode_utf8.h"

namespace localization_manager::host::detail {

/// Needs no memory when the text is short, as keys and values are.
class SmallText {
public:
    explicit SmallText(std::string_view utf8) {
        char16_t* units = brief_.data();
        if (utf8.size() > brief_.size()) {
            long_.resize(utf8.size());
            units = long_.data();
        }
        view_ = {units, static_cast<std::size_t>(qor::DecodeUtf8(utf8, units) - units)};
    }
    SmallText(const SmallText&) = delete;
    SmallText& operator=(const SmallText&) = delete;

    std::u16string_view view() const noexcept { return view_; }

private:
    static constexpr std::size_t kBriefUnits = 128;

    std::array<char16_t, kBriefUnits>
        brief_;  // NOLINT(*-member-init): written as far as it is read
    std::u16string long_;
    std::u16string_view view_;
};

}  // namespace localization_manager::host::detail
