#include "Value.h"

#include "TextCode.h"

namespace LocalizationManager::StringLocalizing::Model {

void Value::ExtendText(std::u16string_view text) {
    Model::ExtendText(code_, last_ + 1, text);
}

void Value::BeginPluralForm(std::u16string_view paramName) {
    Append(OperandKind::PluralForm, paramName);
    BeginPart();
}

void Value::BeginPart() {
    parts_.push_back(code_.size());
    Model::AppendText(code_, {});
}

void Value::EndPart() {
    Model::ExtendText(code_, parts_.back(), {});
    parts_.pop_back();
}

void Value::Clear() noexcept {
    code_.clear();
    parts_.clear();
    last_ = 0;
}

void Value::Join(ValueView value) {
    constexpr auto kText = static_cast<char16_t>(OperandKind::Text);
    std::u16string_view code = value.code();
    ValueView::Iterator operand = value.begin();
    if (!code.empty() && code[0] == kText && !code_.empty() && code_[last_] == kText) {
        Model::ExtendText(code_, last_ + 1, (*operand).text);
        code.remove_prefix((*operand).code.size());
        ++operand;
    }
    for (; operand != value.end(); ++operand) {
        last_ = code_.size() + static_cast<std::size_t>((*operand).code.data() - code.data());
    }
    code_ += code;
}

void Value::Append(OperandKind kind, std::u16string_view text) {
    last_ = code_.size();
    code_ += static_cast<char16_t>(kind);
    Model::AppendText(code_, text);
}

}  // namespace LocalizationManager::StringLocalizing::Model
