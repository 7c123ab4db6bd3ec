// Reading values.
#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

#include "OperandView.h"
#include "TextCode.h"

namespace LocalizationManager::StringLocalizing::Model {

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
            if (rest_.empty()) {
                return;
            }
            std::u16string_view rest = rest_.substr(1);
            operand_.kind = static_cast<OperandKind>(rest_[0]);
            operand_.text = TakeText(rest);
            operand_.forms =
                operand_.kind == OperandKind::PluralForm ? TakeText(rest) : std::u16string_view();
            operand_.code = rest_.substr(0, rest_.size() - rest.size());
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
