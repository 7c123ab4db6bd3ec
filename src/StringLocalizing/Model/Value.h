// The right-hand side of a key, or one form of a plural form invocation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "OperandKind.h"
#include "ValueView.h"

namespace LocalizationManager::StringLocalizing::Model {

/// A sequence of operands; the final text is the concatenation of the resolved ones. It keeps them
/// in one text: of each its kind and its text or name, and of a plural form its values.
class Value {
public:
    ValueView view() const noexcept { return ValueView(code_); }

    /// What it takes to keep, in units: its texts and names, and some for each operand and form.
    std::size_t size() const noexcept { return code_.size(); }

    void AppendText(std::u16string_view text) { Append(OperandKind::Text, text); }
    void AppendKeyRef(std::u16string_view key) { Append(OperandKind::KeyRef, key); }
    void AppendParam(std::u16string_view name) { Append(OperandKind::Param, name); }

    /// Adds to the text that was appended last.
    void ExtendText(std::u16string_view text);

    /// A plural form, until `EndPluralForm`, takes forms; a form, until `EndForm`, takes operands.
    void BeginPluralForm(std::u16string_view paramName);
    void BeginForm() { BeginPart(); }
    void EndForm() { EndPart(); }
    void EndPluralForm() { EndPart(); }

    /// Appends the operands of another value; a text that comes first is joined to a text before it.
    void Join(ValueView value);

    /// Takes all operands away, to be filled anew.
    void Clear() noexcept;

private:
    void Append(OperandKind kind, std::u16string_view text);
    void BeginPart();
    void EndPart();

    std::u16string code_;
    std::size_t last_ = 0;            // where the last operand begins
    std::vector<std::size_t> parts_;  // where the lengths of those stand that are not ended
};

}  // namespace LocalizationManager::StringLocalizing::Model
