// The texts that were found missing.
#pragma once

#include <cstddef>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "localization_manager/host/MissingText.h"

namespace localization_manager::host::detail {

/// May be used from several threads at once.
class MissingTexts {
public:
    /// @return whether the text was not known to be missing.
    bool Add(std::string_view scope, std::string_view culture, std::string_view key) {
        const std::lock_guard<std::mutex> lock(mutex_);
        // Keys that a host makes up as it goes must not fill the memory.
        constexpr std::size_t kMost = 100'000;
        const auto place = missing_.lower_bound(std::tie(scope, culture, key));
        if (place != missing_.end() && IsSame(*place, std::tie(scope, culture, key))) {
            return false;
        }
        if (missing_.size() < kMost) {
            missing_.insert(place, {std::string(scope), std::string(culture), std::string(key)});
        }
        return true;
    }

    std::vector<MissingText> All() const {
        const std::lock_guard<std::mutex> lock(mutex_);
        return {missing_.begin(), missing_.end()};
    }

private:
    using Names = std::tuple<std::string_view, std::string_view, std::string_view>;

    static Names NamesOf(const MissingText& text) { return {text.scope, text.culture, text.key}; }
    static bool IsSame(const MissingText& text, const Names& names) {
        return NamesOf(text) == names;
    }

    struct ByNames {
        using is_transparent = void;
        bool operator()(const MissingText& left, const MissingText& right) const {
            return NamesOf(left) < NamesOf(right);
        }
        bool operator()(const MissingText& left, const Names& right) const {
            return NamesOf(left) < right;
        }
        bool operator()(const Names& left, const MissingText& right) const {
            return left < NamesOf(right);
        }
    };

    mutable std::mutex mutex_;
    std::set<MissingText, ByNames> missing_;
};

}  // namespace localization_manager::host::detail
