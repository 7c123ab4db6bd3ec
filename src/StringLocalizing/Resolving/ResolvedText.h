// The text that resolving makes.
#pragma once

#include <boost/container/small_vector.hpp>
#include <cstddef>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Resolving {

/// A text made of parts. One that stays alone is only viewed, and most others fit without an
/// allocation.
class ResolvedText {  // NOLINT(bugprone-exception-escape): a move finds room and does not allocate
public:
    /// @param text  lives longer than this object.
    void AppendLasting(std::u16string_view text) {
        if (size() == 0) {
            lasting_ = text;
        } else {
            Append(text);
        }
    }

    void Append(std::u16string_view text) {
        if (!lasting_.empty()) {
            Copy(lasting_);
            lasting_ = {};
        }
        Copy(text);
    }

    std::size_t size() const noexcept { return view().size(); }
    std::u16string_view view() const noexcept {
        return units_.empty() ? lasting_ : std::u16string_view(units_.data(), units_.size());
    }

private:
    void Copy(std::u16string_view text) {
        units_.insert(units_.end(), text.data(), text.data() + text.size());
    }

    std::u16string_view lasting_;  // while it is all
    boost::container::small_vector<char16_t, 256> units_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
