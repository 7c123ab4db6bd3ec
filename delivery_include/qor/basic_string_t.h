// The framework's strings, the form in which every text crosses the component boundary.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "qor/Allocator.h"
#include "qor/char_traits.h"

namespace qor::types {

/// A zero-terminated string whose layout host and component agree on. Short texts live in the
/// object; longer ones in storage of the string's own allocator, which is fixed when the string is
/// made: a copy shares the allocator of its source, an assignment keeps the target's. Moving takes
/// the storage over; an assignment from a string of another allocator copies.
///
/// Every operation that can fail throws `std::bad_alloc`, `std::length_error` or
/// `std::out_of_range` and leaves the string as it was. Not synchronised.
template <class CharT, class Traits = char_traits<CharT>, class Alloc = Allocator<CharT>>
class basic_string_t {
public:
    using value_type = CharT;
    using view_type = std::basic_string_view<CharT>;

    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    basic_string_t() noexcept { reset_to_inline(); }

    explicit basic_string_t(Alloc allocator) noexcept : allocator_(std::move(allocator)) {
        reset_to_inline();
    }

    /// @param text  zero-terminated; null makes an empty string.
    basic_string_t(const CharT* text, const Alloc& allocator = Alloc())
        : basic_string_t(text, text != nullptr ? Traits::length(text) : 0, allocator) {}

    basic_string_t(const CharT* text, std::size_t length, const Alloc& allocator = Alloc())
        : allocator_(allocator) {
        constexpr std::size_t kMaxConstructed = 0x7FFFFFFF;
        if (length > kMaxConstructed) {
            throw std::length_error("qor::basic_string_t constructor");
        }
        reset_to_inline();
        append(text, length);
    }

    explicit basic_string_t(view_type text, const Alloc& allocator = Alloc())
        : basic_string_t(text.data(), text.size(), allocator) {}

    /// The part of `other` that starts at `start`; `count` is cut to what is there.
    basic_string_t(const basic_string_t& other, std::size_t start, std::size_t count = npos)
        : allocator_(other.allocator_) {
        reset_to_inline();
        append(other, start, count);
    }

    basic_string_t(const basic_string_t& other) : basic_string_t(other, 0) {}

    basic_string_t(basic_string_t&& other) noexcept : basic_string_t(other.allocator_) {
        swap_contents(other);
    }

    ~basic_string_t() { release_storage(); }

    basic_string_t& operator=(const basic_string_t& other) {
        return this == &other ? *this : assign(other.data_, other.size_);
    }

    // NOLINTNEXTLINE(bugprone-exception-escape,performance-noexcept-move-constructor): it may copy
    basic_string_t& operator=(basic_string_t&& other) {
        if (allocator_ == other.allocator_) {
            basic_string_t(std::move(other)).swap_contents(*this);
            return *this;
        }
        return assign(other.data_, other.size_);
    }

    basic_string_t& operator=(view_type text) { return assign(text.data(), text.size()); }
    basic_string_t& operator=(const CharT* text) { return *this = view_type(text); }

    basic_string_t& assign(const CharT* text, std::size_t length) {
        if (length > capacity_) {
            grow(0, length, kReserveText, [&](CharT* to) { Traits::copy(to, text, length); });
            set_size(length);
        } else {
            Traits::move(data_, text, length);
            set_size(length);
        }
        return *this;
    }

    /// `text` may lie inside this string.
    basic_string_t& append(const CharT* text, std::size_t length) {
        if (length > capacity_ - size_) {
            grow(size_, length, kReserveText,
                 [&](CharT* to) { Traits::copy(to + size_, text, length); });
        } else {
            Traits::move(data_ + size_, text, length);
        }
        set_size(size_ + length);
        return *this;
    }

    basic_string_t& append(view_type text) { return append(text.data(), text.size()); }

    /// Appends the part of `other` that starts at `start`; `count` is cut to what is there.
    basic_string_t& append(const basic_string_t& other, std::size_t start, std::size_t count) {
        if (start > other.size_) {
            throw std::out_of_range("qor::basic_string_t::append()");
        }
        return append(other.data_ + start, std::min<std::size_t>(count, other.size_ - start));
    }

    basic_string_t& append(std::size_t count, CharT character) {
        if (count > capacity_ - size_) {
            grow(size_, count, kReserveText, [](CharT*) {});
        }
        Traits::assign(data_ + size_, count, character);
        set_size(size_ + count);
        return *this;
    }

    /// Puts `text`, which must not lie inside this string, in front of position `at`.
    basic_string_t& insert(std::size_t at, const CharT* text, std::size_t length) {
        if (at > size_) {
            throw std::out_of_range("qor::basic_string_t::insert");
        }
        if (!fits_limit(size_, length)) {
            throw std::length_error("qor::basic_string_t::insert");
        }
        resize_extra_at(at, length);
        Traits::copy(data_ + at, text, length);
        return *this;
    }

    /// Makes room for `count` characters in front of position `at`; what stands there afterwards is
    /// unspecified until the caller fills it.
    void resize_extra_at(std::size_t at, std::size_t count) {
        if (count > capacity_ - size_) {
            grow(size_, count, "qor::basic_string_t::resize_extra_at", [](CharT*) {});
        }
        Traits::move(data_ + at + count, data_ + at, size_ - at);
        set_size(size_ + count);
    }

    void clear() noexcept { set_size(0); }

    basic_string_t substr(std::size_t start, std::size_t count = npos) const {
        return basic_string_t(*this, start, count);
    }

    /// Exchanges the texts; both strings must have the same allocator.
    void swap_contents(basic_string_t& other) noexcept {
        if (is_inline() && other.is_inline()) {
            std::swap(inline_, other.inline_);
        } else if (is_inline()) {
            other.swap_contents(*this);
            return;
        } else if (other.is_inline()) {
            Traits::copy(inline_, other.inline_, other.size_ + std::size_t{1});
            other.data_ = std::exchange(data_, inline_);
        } else {
            std::swap(data_, other.data_);
        }
        std::swap(size_, other.size_);
        std::swap(capacity_, other.capacity_);
    }

    const CharT* c_str() const noexcept { return data_; }
    const CharT* data() const noexcept { return data_; }
    std::size_t size() const noexcept { return size_; }
    std::size_t capacity() const noexcept { return capacity_; }
    bool empty() const noexcept { return size_ == 0; }
    view_type view() const noexcept { return view_type(data_, size_); }
    const Alloc& get_allocator() const noexcept { return allocator_; }

    friend bool operator==(const basic_string_t& left, const basic_string_t& right) noexcept {
        return left.view() == right.view();
    }
    friend bool operator!=(const basic_string_t& left, const basic_string_t& right) noexcept {
        return !(left == right);
    }

private:
    static constexpr std::size_t kInlineBytes = 16;
    static constexpr std::uint32_t kInlineCapacity = kInlineBytes / sizeof(CharT) - 1;

    bool is_inline() const noexcept { return data_ == inline_; }

    static constexpr const char* kReserveText = "qor::basic_string_t::reserve_extra()";

    static bool fits_limit(std::size_t size, std::size_t extra) noexcept {
        return extra < Traits::length_limit - size;
    }

    void reset_to_inline() noexcept {
        data_ = inline_;
        size_ = 0;
        capacity_ = kInlineCapacity;
        inline_[0] = CharT();
    }

    void set_size(std::size_t size) noexcept {
        size_ = static_cast<std::uint32_t>(size);
        data_[size] = CharT();
    }

    void release_storage() {
        if (!is_inline()) {
            allocator_.deallocate(data_);
        }
    }

    /// Moves the first `kept` characters into storage with room for `extra` more. `addTo` runs on
    /// the new storage while the old one still stands, so that it may copy from there.
    template <class AddTo>
    void grow(std::size_t kept, std::size_t extra, const char* limitText, AddTo addTo) {
        if (!fits_limit(kept, extra)) {
            throw std::length_error(limitText);
        }
        const std::uint64_t needed = std::uint64_t{kept} + extra;
        const std::uint64_t doubled =
            std::min(std::uint64_t{capacity_} * 2, std::uint64_t{Traits::length_limit});
        const std::uint64_t capacity = std::max(needed, doubled);
        CharT* const storage = allocator_.allocate(static_cast<std::size_t>(capacity) + 1);
        Traits::copy(storage, data_, kept);
        addTo(storage);
        release_storage();
        data_ = storage;
        capacity_ = static_cast<std::uint32_t>(capacity);
    }

    friend struct string_layout;

    // The order and the sizes of the fields are the binary contract with the host.
    CharT* data_;
    std::uint32_t size_;
    std::uint32_t capacity_;
    Alloc allocator_;
    CharT inline_[kInlineBytes / sizeof(CharT)] = {};
};

/// Holds the fields to their places.
struct string_layout {
    using string = basic_string_t<char16_t>;
    static constexpr std::size_t kPointer = sizeof(void*);
    static_assert(offsetof(string, data_) == 0);
    static_assert(offsetof(string, size_) == kPointer);
    static_assert(offsetof(string, capacity_) == kPointer + 4);
    static_assert(offsetof(string, allocator_) == kPointer + 8);
    static_assert(offsetof(string, inline_) == 2 * kPointer + 8);
    static_assert(sizeof(string) == 2 * kPointer + 24);
    static_assert(sizeof(basic_string_t<char>) == sizeof(string));
};

}  // namespace qor::types

namespace qor {

/// UTF-16 text: paths, keys, scope names, localised texts.
using string16_t = types::basic_string_t<char16_t>;

/// Narrow text: ISO names, regions, the texts of the error listener.
using string8_t = types::basic_string_t<char>;

}  // namespace qor
