// The operands of an entry, or of a form.
#pragma once

#include <cstddef>
#include <iterator>
#include <vector>

#include "source/Operand.h"

namespace lm_source {

/// A view into the operands of a document, to be walked with `for`. What stands in the forms of a
/// plural form is not met on the way. Empty only in a faulty entry.
class Value {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Operand;
        using difference_type = std::ptrdiff_t;
        using pointer = const Operand*;
        using reference = const Operand&;

        explicit Iterator(const Operand* operand) noexcept : operand_(operand) {}

        reference operator*() const noexcept { return *operand_; }
        pointer operator->() const noexcept { return operand_; }
        Iterator& operator++() noexcept {
            operand_ += operand_->extent;
            return *this;
        }
        bool operator==(Iterator other) const noexcept { return operand_ == other.operand_; }
        bool operator!=(Iterator other) const noexcept { return operand_ != other.operand_; }

    private:
        const Operand* operand_;
    };

    Value(const Operand* begin, const Operand* end) noexcept : begin_(begin), end_(end) {}

    Iterator begin() const noexcept { return Iterator(begin_); }
    Iterator end() const noexcept { return Iterator(end_); }
    bool empty() const noexcept { return begin_ == end_; }

private:
    const Operand* begin_;
    const Operand* end_;
};

/// The forms of a plural form, which must stand in its document; none for any other operand.
inline std::vector<Value> FormsOf(const Operand& pluralForm) {
    std::vector<Value> forms;
    const Operand* const end = &pluralForm + pluralForm.extent;
    for (const Operand* form = &pluralForm + 1; form != end;) {
        const Operand* const begin = form;
        do {
            form += form->extent;
        } while (form != end && !form->beginsForm);
        forms.emplace_back(begin, form);
    }
    return forms;
}

}  // namespace lm_source
