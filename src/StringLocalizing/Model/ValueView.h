// Reading values.
#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

#include "OperandView.h"
#include "TextCode.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Takes an operand off the front of a value's code.
inline OperandView TakeOperand(std::u16string_view& code) noexcept {
    const std::u16string_view all = code;
    code.remove_prefix(1);
    OperandView operand{static_cast<OperandKind>(all[0]), TakeText(code), {}, {}};
    if (operand.kind == OperandKind::PluralForm) {
        operand.forms = TakeText(code);
    }
    operand.code = all.substr(0, all.size() - code.size());
    return operand;
}

/// The operands of a value that somebody else keeps.
class ValueView {
public:
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = OperandView;
        using difference_type = std::ptrdiff_t;
        using pointer = const OperandView*;
        using reference = const OperandView&;

        explicit Iterator(std::u16string_view rest) noexcept : rest_(rest) { Read(); }

        reference operator*() const noexcept { return operand_; }
        Iterator& operator++() noexcept {
            rest_.remove_prefix(operand_.code.size());
            Read();
            return *this;
        }
        bool operator==(const Iterator& other) const noexcept {
            return rest_.size() == other.rest_.size();
        }
        bool operator!=(const Iterator& other) const noexcept { return !(*this == other); }

    private:
        void Read() noexcept {
            if (!rest_.empty()) {
                std::u16string_view rest = rest_;
                operand_ = TakeOperand(rest);
            }
        }

        std::u16string_view rest_;
        OperandView operand_{};
    };

    explicit ValueView(std::u16string_view code) noexcept : code_(code) {}

    std::u16string_view code() const noexcept { return code_; }
    Iterator begin() const noexcept { return Iterator(code_); }
    Iterator end() const noexcept { return Iterator({}); }

private:
    std::u16string_view code_;
};

/// Calls `visit` with each form of a plural form.
template <class Visit>
void ForEachForm(const OperandView& pluralForm, Visit visit) {
    for (std::u16string_view forms = pluralForm.forms; !forms.empty();) {
        visit(ValueView(TakeText(forms)));
    }
}

}  // namespace LocalizationManager::StringLocalizing::Model
