#include "edit/plural_forms.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "edit/format.h"

namespace lm_edit {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Value;

namespace {

std::string ValueWithForms(const Document& document, Value value, std::size_t count) {
    std::string text;
    for (const Operand& operand : value) {
        text += text.empty() ? "" : " + ";
        if (operand.kind != OperandKind::PluralForm) {
            text += document.Bytes(operand.range);
            continue;
        }
        text += WithForms(document, operand, count);
    }
    return text;
}

}  // namespace

std::string WithForms(const Document& document, const Operand& pluralForm, std::size_t count) {
    const std::vector<Value> forms = FormsOf(pluralForm);
    std::string text = "{$" + std::string(document.Name(pluralForm)) + ": ";
    for (std::size_t form = 0; form < count; ++form) {
        const bool isLast = form + 1 >= std::min(count, forms.size());
        text += (form == 0 ? "" : ", ") +
                ValueWithForms(document, isLast ? forms.back() : forms[form], count);
    }
    return text + '}';
}

std::string EntryWithForms(const Document& document, const Entry& entry, std::size_t count,
                           std::string_view lineBreak) {
    std::string text(document.Key(entry));
    text.append(" = ").append(ValueWithForms(document, document.ValueOf(entry), count));
    return Format(Document(text.append(lineBreak)));
}

}  // namespace lm_edit
