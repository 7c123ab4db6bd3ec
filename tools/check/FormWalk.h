// Every operand of a value, with the forms that it stands in.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "plural/PluralRule.h"
#include "source/Document.h"

namespace lm_check {

/// Whether an entry has plural forms.
inline bool HasForms(const lm_source::Document& document, const lm_source::Entry& entry) {
    const auto operands = document.OperandsOf(entry);
    return std::any_of(operands.begin(), operands.end(), [](const lm_source::Operand& operand) {
        return operand.kind == lm_source::OperandKind::PluralForm;
    });
}

/// Walks a value with a plural rule, which says what can be selected. In a form of a parameter's
/// plural form that parameter's number selects the same form again. The parser has bounded how deep
/// forms stand inside each other.
class FormWalk {
public:
    /// @param rule  null when it is not known: every form then counts as live.
    FormWalk(const lm_source::Document& document, const lm_plural::PluralRule* rule)
        : document_(document), rule_(rule) {}

    /// Calls `visit(operand, isLive, depth)` for each operand, a plural form before those in it.
    /// @param visit  depth is the number of forms around the operand.
    template <class Visit>
    void Operands(lm_source::Value value, Visit& visit) {
        Walk(value, true, visit);
    }

    /// Whether a number can select a form of the plural form that is being visited.
    bool IsSelectable(std::string_view param, std::size_t form) const {
        const auto fixed =
            std::find_if(chosen_.rbegin(), chosen_.rend(),
                         [param](const Chosen& outer) { return outer.param == param; });
        if (fixed != chosen_.rend()) {
            return fixed->form == form;
        }
        return rule_ == nullptr || form >= rule_->FormCount() ||
               rule_->UseOf(form) != lm_plural::Use::None;
    }

private:
    struct Chosen {
        std::string_view param;
        std::size_t form;
    };

    template <class Visit>
    void Walk(lm_source::Value value, bool isLive, Visit& visit) {
        for (const lm_source::Operand& operand : value) {
            visit(operand, isLive, chosen_.size());
            if (operand.kind != lm_source::OperandKind::PluralForm) {
                continue;
            }
            const std::string_view param = document_.Name(operand);
            std::size_t index = 0;
            for (const lm_source::Value form : FormsOf(operand)) {
                const bool isFormLive = isLive && IsSelectable(param, index);
                chosen_.push_back({param, index});
                Walk(form, isFormLive, visit);
                chosen_.pop_back();
                ++index;
            }
        }
    }

    const lm_source::Document& document_;
    const lm_plural::PluralRule* rule_;
    std::vector<Chosen> chosen_;
};

}  // namespace lm_check
