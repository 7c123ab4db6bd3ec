#include "Value.h"

#include "TextCode.h"

namespace LocalizationManager::StringLocalizing::Model {

void Value::Append(OperandKind kind, std::u16string_view text, const std::vector<Value>& forms) {
    last_ = code_.size();
    code_ += static_cast<char16_t>(kind);
    AppendText(code_, text);
    if (kind == OperandKind::PluralForm) {
        std::u16string code;
        for (const Value& form : forms) {
            AppendText(code, form.code_);
        }
        AppendText(code_, code);
    }
}

void Value::Join(const OperandView& operand) {
    constexpr auto kText = static_cast<char16_t>(OperandKind::Text);
    if (operand.kind == OperandKind::Text && !code_.empty() && code_[last_] == kText) {
        ExtendText(code_, last_ + 1, operand.text);
    } else {
        last_ = code_.size();
        code_ += operand.code;
    }
}

}  // namespace LocalizationManager::StringLocalizing::Model
