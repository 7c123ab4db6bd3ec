#include <algorithm>
#include <iterator>
#include <optional>

#include "check/FormWalk.h"
#include "check/families.h"
#include "localization_manager/host/DerivedParam.h"
#include "tree/ascii_case.h"

namespace lm_check {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_tree::LowerAscii;
using localization_manager::host::DerivedParam;
using localization_manager::host::SuppliedParam;

namespace {

/// Compares the parameters of texts with those of the reference.
class Comparison {
public:
    Comparison(const Subject& subject, Collector& out) : subject_(subject), out_(out) {}

    /// @param expansion  of the file that the entry stands in.
    void Judge(const TextFile& file, const Expansion& expansion, const Entry& entry,
               const ReferenceText& reference) {
        const Expansion::Text& text = expansion.Of(entry);
        if (text.params == reference.params || !reference.isComplete || !text.isComplete) {
            return;
        }
        const auto& has = subject_.names.MembersOf(text.params);
        const auto& known = subject_.reference.names->MembersOf(reference.params);
        NameSets::Members unknown;
        std::set_difference(has.begin(), has.end(), known.begin(), known.end(),
                            std::back_inserter(unknown));
        NameSets::Members dropped;
        std::set_difference(known.begin(), known.end(), has.begin(), has.end(),
                            std::back_inserter(dropped));
        for (const NameSets::Name name : unknown) {
            AddUnknown(file, expansion, entry, subject_.names.TextOf(name), dropped, known);
        }
        for (const NameSets::Name name : dropped) {
            AddDropped(file, entry, subject_.names.TextOf(name), unknown);
        }
    }

private:
    void AddUnknown(const TextFile& file, const Expansion& expansion, const Entry& entry,
                    const std::string& name, const NameSets::Members& dropped,
                    const NameSets::Members& known) {
        if (subject_.plan.options.Supplies(name)) {
            return;
        }
        std::string message = "the reference text has no parameter $" + name;
        const std::string similar = Similar(name, dropped.empty() ? known : dropped);
        if (!similar.empty()) {
            message += ": write $" + similar + " (letter case counts)";
        } else if (known.empty()) {
            message += ", nor any other: remove it, or have the program supply it (--param)";
        } else {
            message += ": write " + List(known) + ", or have the program supply it (--param)";
        }
        out_.Add(Rule::UnknownParameter, Subject::ViewOf(file),
                 PlaceOf(file, expansion, entry, name), file.document.Key(entry), subject_.requests,
                 std::move(message));
    }

    void AddDropped(const TextFile& file, const Entry& entry, const std::string& name,
                    const NameSets::Members& unknown) {
        if (!Similar(name, unknown).empty()) {
            return;  // it is there in other letter case, which is said already
        }
        out_.Add(Rule::ParameterDropped, Subject::ViewOf(file), entry.key, file.document.Key(entry),
                 subject_.requests,
                 "the text does not use $" + name + ", which the reference text does: put it in");
    }

    /// The name that differs only in letter case; empty when there is none.
    std::string Similar(const std::string& name, const NameSets::Members& others) const {
        for (const NameSets::Name other : others) {
            const std::string& text = subject_.names.TextOf(other);
            if (text != name && lm_tree::SameIgnoringCase(text, name)) {
                return text;
            }
        }
        return {};
    }

    std::string List(const NameSets::Members& names) const {
        std::string list;
        for (const NameSets::Name name : names) {
            list += (list.empty() ? "$" : ", $") + subject_.names.TextOf(name);
        }
        return list;
    }

    /// The first place of an entry where a parameter is asked for, perhaps by a reference.
    Range PlaceOf(const TextFile& file, const Expansion& expansion, const Entry& entry,
                  const std::string& name) {
        const Document& document = file.document;
        for (const Operand& operand : document.OperandsOf(entry)) {
            if ((operand.kind == OperandKind::Param || operand.kind == OperandKind::PluralForm) &&
                SuppliedParam(document.Name(operand)) == name) {
                const Range range = document.NameRange(operand);
                return {range.begin - 1, range.end};
            }
        }
        const NameSets::Name number = subject_.names.NameOf(name);
        for (const Operand& operand : document.ValueOf(entry)) {
            if (operand.kind != OperandKind::KeyRef) {
                continue;
            }
            const Expansion::Text* const target = expansion.Target(document.Name(operand));
            if (target != nullptr) {
                const auto& members = subject_.names.MembersOf(target->params);
                if (std::binary_search(members.begin(), members.end(), number)) {
                    return operand.range;
                }
            }
        }
        return entry.key;
    }

    const Subject& subject_;
    Collector& out_;
};

/// Parameters of a source, by how they are spelt.
using Spellings = std::map<std::string, std::map<std::string, std::size_t>>;

Spellings SpellingsOf(const Document& document) {
    std::map<std::string_view, std::size_t> uses;
    for (const Entry& entry : document.Entries()) {
        for (const Operand& operand : document.OperandsOf(entry)) {
            if (operand.kind == OperandKind::Param || operand.kind == OperandKind::PluralForm) {
                ++uses[SuppliedParam(document.Name(operand))];
            }
        }
    }
    Spellings spellings;
    for (const auto& [name, count] : uses) {
        spellings[LowerAscii(name)][std::string(name)] = count;
    }
    return spellings;
}

void AddCase(const Subject& subject, const std::string& name, const std::string& other,
             Collector& out) {
    const Document& document = subject.file.document;
    for (const Entry& entry : document.Entries()) {
        for (const Operand& operand : document.OperandsOf(entry)) {
            if ((operand.kind == OperandKind::Param || operand.kind == OperandKind::PluralForm) &&
                SuppliedParam(document.Name(operand)) == name) {
                const Range range = document.NameRange(operand);
                out.Add(Rule::ParameterCase, subject.Source(), {range.begin - 1, range.end},
                        document.Key(entry), subject.requests,
                        std::string("$").append(name).append(" and $").append(other).append(
                            " differ only in letter case, which counts: are they meant to be two "
                            "parameters?"));
                break;
            }
        }
    }
}

/// Of the spellings in one file all but the usual one. A translation's spellings that its reference
/// does not have are unknown parameters, unless the program supplies them.
void CheckCase(const Subject& subject, Collector& out) {
    if (!out.Wants(Rule::ParameterCase)) {
        return;
    }
    for (const auto& [lower, spellings] : SpellingsOf(subject.file.document)) {
        const auto usual =
            std::max_element(spellings.begin(), spellings.end(),
                             [](const auto& l, const auto& r) { return l.second < r.second; });
        for (const auto& [name, count] : spellings) {
            if (name != usual->first &&
                (subject.isReference || subject.plan.options.Supplies(name))) {
                AddCase(subject, name, usual->first, out);
            }
        }
    }
}

/// What is written for people is a number by chance: "3" is one, "1.234" is not.
void CheckChoices(const Subject& subject, Collector& out) {
    const Document& document = subject.file.document;
    FormWalk walk(document, subject.rule.Rule());
    for (const Entry& entry : document.Entries()) {
        auto visit = [&](const Operand& operand, bool isLive, std::size_t /*depth*/) {
            const auto derived = operand.kind == OperandKind::PluralForm
                                     ? DerivedParam::Split(document.Name(operand))
                                     : std::nullopt;
            if (!derived) {
                return;
            }
            const std::string name(document.Name(operand));
            const Range written = document.NameRange(operand);
            const Range range{written.begin - 1, written.end};
            std::string message = "$" + name + " is a text for people, which chooses no form: ";
            message.append("write {$").append(derived->param).append(": ...}, and $").append(name);
            message.append(" inside");
            if (isLive) {
                out.Add(Rule::FormattedForm, subject.Source(), range, document.Key(entry),
                        subject.requests, std::move(message));
            } else {
                out.AddWarning(Rule::FormattedForm, subject.Source(), range, document.Key(entry),
                               subject.requests, std::move(message));
            }
        };
        if (!entry.isFaulty) {
            walk.Operands(document.ValueOf(entry), visit);
        }
    }
}

}  // namespace

void CheckParameters(const Subject& subject, Collector& out) {
    CheckCase(subject, out);
    CheckChoices(subject, out);
    if (subject.isReference) {
        return;
    }
    Comparison comparison(subject, out);
    for (const Entry& entry : subject.file.document.Entries()) {
        const ReferenceText* const reference =
            subject.reference.Find(subject.file.document.Key(entry));
        if (reference != nullptr && !entry.isFaulty) {
            comparison.Judge(subject.file, subject.expansion, entry, *reference);
        }
    }
    if (subject.common == nullptr || subject.reference.own == nullptr) {
        return;
    }
    // A key that the reference answers in this scope may be answered by the common texts here.
    for (const ReferenceText& reference : subject.reference.own->Texts()) {
        const std::string_view key = subject.reference.own->KeyOf(reference);
        const Entry* const entry = subject.common->document.Find(key);
        if (entry != nullptr && !entry->isFaulty && subject.file.document.Find(key) == nullptr) {
            comparison.Judge(*subject.common, *subject.commonExpansion, *entry, reference);
        }
    }
}

}  // namespace lm_check
