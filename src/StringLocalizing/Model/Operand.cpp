#include "Operand.h"

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>

namespace LocalizationManager::StringLocalizing::Model {

namespace {

class Encoder : public boost::static_visitor<> {
public:
    explicit Encoder(Value& value) : value_(value) {}

    void operator()(const std::u16string& text) const { value_.Append(OperandKind::Text, text); }
    void operator()(const KeyRef& ref) const { value_.Append(OperandKind::KeyRef, ref.key); }
    void operator()(const Param& param) const { value_.Append(OperandKind::Param, param.name); }

    void operator()(const PluralForm& pluralForm) const {
        value_.Append(OperandKind::PluralForm, pluralForm.paramName, pluralForm.forms);
    }

private:
    Value& value_;
};

}  // namespace

void Append(Value& value, const Operand& operand) {
    boost::apply_visitor(Encoder(value), operand);
}

}  // namespace LocalizationManager::StringLocalizing::Model
