#include "Value.h"

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>

namespace LocalizationManager::StringLocalizing::Model {

namespace {

class Encoder : public boost::static_visitor<> {
public:
    explicit Encoder(std::u16string& code) : code_(code) {}

    void operator()(const std::u16string& text) const { Encode(OperandKind::Text, text); }
    void operator()(const KeyRef& ref) const { Encode(OperandKind::KeyRef, ref.key); }
    void operator()(const Param& param) const { Encode(OperandKind::Param, param.name); }

    void operator()(const PluralForm& pluralForm) const {
        Encode(OperandKind::PluralForm, pluralForm.paramName);
        std::u16string forms;
        for (const Value& form : pluralForm.forms) {
            AppendText(forms, form.view().code());
        }
        AppendText(code_, forms);
    }

private:
    void Encode(OperandKind kind, std::u16string_view text) const {
        code_ += static_cast<char16_t>(kind);
        AppendText(code_, text);
    }

    std::u16string& code_;
};

}  // namespace

Value::Value(ValueView view) {
    for (const OperandView& operand : view) {
        Append(operand);
    }
}

void Value::Append(const Operand& operand) {
    last_ = code_.size();
    boost::apply_visitor(Encoder(code_), operand);
}

void Value::Append(const OperandView& operand) {
    last_ = code_.size();
    code_ += operand.code;
}

void Value::Join(const OperandView& operand) {
    const auto text = static_cast<char16_t>(OperandKind::Text);
    if (operand.kind == OperandKind::Text && !code_.empty() && code_[last_] == text) {
        ExtendText(code_, last_ + 1, operand.text);
    } else {
        Append(operand);
    }
}

}  // namespace LocalizationManager::StringLocalizing::Model
