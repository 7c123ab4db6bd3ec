#include <optional>
#include <string>

#include "lsp/Spot.h"
#include "lsp/actions/actions.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Value;

namespace {

/// The outermost plural form around a place of an entry without mistakes; null for none.
const Operand* FormAround(const Document& document, std::uint32_t at) {
    const Spot spot = SpotAt(document, at);
    const bool isInForm = !spot.forms.empty() && !spot.entry->isFaulty;
    return isInForm ? spot.forms.front().first : nullptr;
}

/// The operand that a form begins or ends with; null for an empty form.
const Operand* EndOf(Value form, bool isFirst) {
    const Operand* end = nullptr;
    for (const Operand& operand : form) {
        end = &operand;
        if (isFirst) {
            break;
        }
    }
    return end;
}

/// The plural form without a reference that all of its forms begin or end with.
std::optional<std::string> Outside(const Document& document, const Operand& pluralForm,
                                   const std::string& name, bool isFirst) {
    std::string text = "{$" + std::string(document.Name(pluralForm)) + ": ";
    bool isNext = false;
    for (const Value form : FormsOf(pluralForm)) {
        const Operand* const outer = EndOf(form, isFirst);
        if (outer == nullptr || outer->kind != OperandKind::KeyRef ||
            document.LowerKey(document.Name(*outer)) != document.LowerKey(name)) {
            return std::nullopt;
        }
        std::string rest;
        for (const Operand& operand : form) {
            if (&operand != outer) {
                rest.append(rest.empty() ? "" : " + ").append(document.Bytes(operand.range));
            }
        }
        text.append(isNext ? ", " : "").append(rest.empty() ? "''" : rest);
        isNext = true;
    }
    return text + '}';
}

/// What a reference stands for, when it is the same for all cultures of the file and has no references
/// in turn.
std::optional<std::string> MeaningOf(const Scene& scene, const std::string& name) {
    const Document* source = &scene.Document();
    if (source->Find(name) == nullptr) {
        const auto common = scene.GetSnapshot().CommonOf(scene.GetTarget().File());
        source = common.size() == 1 ? scene.GetSnapshot().Get(common.front()) : nullptr;
    }
    const Entry* const entry = source != nullptr ? source->Find(name) : nullptr;
    if (entry == nullptr || entry->isFaulty) {
        return std::nullopt;
    }
    std::string text;
    for (const Operand& operand : source->ValueOf(*entry)) {
        if (operand.kind == OperandKind::KeyRef || operand.kind == OperandKind::PluralForm) {
            return std::nullopt;
        }
        text.append(text.empty() ? "" : " + ").append(source->Bytes(operand.range));
    }
    return text;
}

}  // namespace

void TakeOutReference(const Scene& scene, Offers& offers) {
    const Document& document = scene.Document();
    for (const lm_check::Finding* const finding : scene.Here(lm_check::Rule::ReferenceInForm)) {
        const lm_source::Range reference = finding->location.range;
        const Operand* const pluralForm = FormAround(document, reference.begin);
        if (pluralForm == nullptr) {
            continue;
        }
        const std::string name(document.Bytes(reference));
        const std::string title = "Take " + name + " out of the braces";
        if (const auto text = Outside(document, *pluralForm, name, true)) {
            offers.Add(title, scene.DiagnosticOf(*finding),
                       {{pluralForm->range, name + " + " + *text}});
        } else if (const auto before = Outside(document, *pluralForm, name, false)) {
            offers.Add(title, scene.DiagnosticOf(*finding),
                       {{pluralForm->range, *before + " + " + name}});
        } else if (const auto meaning = MeaningOf(scene, name)) {
            offers.Add("Write the text of " + name, scene.DiagnosticOf(*finding),
                       {{reference, *meaning}});
        }
    }
}

}  // namespace lm_lsp
