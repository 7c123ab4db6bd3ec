// The right-hand side of a key, or one form of a plural form invocation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "OperandKind.h"
#include "OperandView.h"
#include "ValueView.h"

namespace LocalizationManager::StringLocalizing::Model {

/// A sequence of operands; the final text is the concatenation of the resolved ones. It keeps them
/// in one text: of each its kind and its text or name, and of a plural form its values.
class Value {
public:
    ValueView view() const noexcept { return ValueView(code_); }

    /// @param text   of a text; else the key, or the parameter's name.
    /// @param forms  of a plural form.
    void Append(OperandKind kind, std::u16string_view text, const std::vector<Value>& forms = {});

    /// Appends an operand of another value; a text is joined to a text before it.
    void Join(const OperandView& operand);

private:
    std::u16string code_;
    std::size_t last_ = 0;  // where the last operand begins
};

}  // namespace LocalizationManager::StringLocalizing::Model
