// The text that resolving makes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Resolving {

/// A text made of parts. One that stays alone is only viewed, and most others fit without an
/// allocation.
class ResolvedText {
public:
    // Room is not filled beforehand.
    ResolvedText() noexcept {}  // NOLINT(*-member-init,*-equals-default)
    ResolvedText(const ResolvedText&) = delete;
    ResolvedText& operator=(const ResolvedText&) = delete;
    ~ResolvedText() = default;

    /// @param text  lives longer than this object.
    void AppendLasting(std::u16string_view text) {
        if (view_.empty()) {
            view_ = text;
        } else {
            Append(text);
        }
    }

    void Append(std::u16string_view text) {
        const std::size_t size = view_.size() + text.size();
        if (view_.data() != units_ || size > capacity_) {
            MoveTo(size > capacity_ ? std::max(size, 2 * capacity_) : capacity_);
        }
        text.copy(units_ + view_.size(), text.size());
        view_ = {units_, size};
    }

    std::size_t size() const noexcept { return view_.size(); }
    std::u16string_view view() const noexcept { return view_; }

private:
    static constexpr std::size_t kUsualSize = 256;

    /// Copies what there is to where there is room.
    void MoveTo(std::size_t capacity) {
        std::unique_ptr<char16_t[]> larger;
        if (capacity > capacity_) {
            larger.reset(new char16_t[capacity]);  // not filled with zeros
            units_ = larger.get();
            capacity_ = capacity;
        }
        view_.copy(units_, view_.size());
        if (larger) {
            larger_ = std::move(larger);
        }
    }

    std::u16string_view view_;
    char16_t* units_ = usual_;
    std::size_t capacity_ = kUsualSize;
    std::unique_ptr<char16_t[]> larger_;
    char16_t usual_[kUsualSize];
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
