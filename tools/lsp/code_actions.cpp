#include "lsp/code_actions.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/accept.h"
#include "edit/add_missing.h"
#include "edit/append.h"
#include "edit/plural_forms.h"
#include "lsp/Diagnostics.h"
#include "lsp/places.h"
#include "source/comments.h"
#include "source/edits.h"

namespace lm_lsp {

using lm_check::Finding;
using lm_check::Rule;
using lm_source::Document;
using lm_source::Edit;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Range;
using lm_source::Value;

namespace {

constexpr std::size_t kMostKeys = 20;  // that are offered one by one

bool Touches(Range left, Range right) {
    return left.begin <= right.end && right.begin <= left.end;
}

const Operand* FirstOf(Value value) {
    return value.empty() ? nullptr : &*value.begin();
}

const Operand* LastOf(Value value) {
    const Operand* last = nullptr;
    for (const Operand& operand : value) {
        last = &operand;
    }
    return last;
}

class Actions {
public:
    Actions(const Target& target, Range range)
        : target_(target), document_(target.Document()), range_(range) {}

    /// That a comment matches nothing is known of the tree as a whole only: the editor has been told.
    void AddKnown(const Json& diagnostics) {
        for (const Json& diagnostic : diagnostics) {
            const bool isUnused =
                diagnostic.value("code", Json()) == lm_check::InfoOf(Rule::UnusedSuppression).name;
            if (isUnused) {
                RemoveSuppression(target_.OffsetOf(diagnostic.at("range").at("start")));
            }
        }
    }

    Json Find() {
        if (target_.InTree()->CulturesOf(target_.File()).empty()) {
            return std::move(actions_);
        }
        for (const Finding& finding : JudgeFile(*target_.InTree(), target_.File()).findings) {
            if (finding.rule == Rule::MissingKey) {
                missing_.push_back(finding.key);
            }
            if (Touches(finding.location.range, range_)) {
                Mend(finding);
            }
        }
        AddMissing();
        for (const Finding& finding : ignorable_) {
            Suppress(finding);
        }
        return std::move(actions_);
    }

private:
    void Mend(const Finding& finding) {
        switch (finding.rule) {
            case Rule::FormCount:
                WriteForms(finding);
                break;
            case Rule::ReferenceInForm:
                TakeOut(finding);
                break;
            case Rule::Syntax:
                EscapeQuote(finding);
                return;  // nobody can ignore it
            case Rule::Escape:
                Offer("Write the backslash twice",
                      {{{finding.location.range.begin, finding.location.range.begin}, "\\"}});
                break;
            case Rule::UnusedSuppression:
                RemoveSuppression(finding.location.range.begin);
                return;
            case Rule::Stale:
                Accept(finding);
                break;
            default:
                break;
        }
        ignorable_.push_back(finding);
    }

    void Offer(const std::string& title, const std::vector<Edit>& edits) {
        Json changes = Json::array();
        for (const Edit& edit : edits) {
            changes.push_back(EditOf(document_, edit.range, edit.replacement));
        }
        OfferIn(title, target_.Uri(), std::move(changes));
    }

    void OfferIn(const std::string& title, const std::string& uri, Json edits) {
        Json action = {{"title", title},
                       {"kind", "quickfix"},
                       {"edit", {{"changes", {{uri, std::move(edits)}}}}}};
        if (std::find(actions_.begin(), actions_.end(), action) == actions_.end()) {
            actions_.push_back(std::move(action));
        }
    }

    void AddMissing() {
        if (missing_.empty()) {
            return;
        }
        // What the file as a whole lacks is shown at its start.
        if (range_.begin <= document_.Content().begin) {
            for (std::size_t i = 0; i < std::min(missing_.size(), kMostKeys); ++i) {
                AddKeys("Add the missing key " + missing_[i], {missing_[i]});
            }
        }
        if (missing_.size() > 1) {
            AddKeys("Add all " + std::to_string(missing_.size()) + " missing keys", {});
        }
    }

    void AddKeys(const std::string& title, const std::vector<std::string>& keys) {
        const auto culture = lm_tree::CultureOfDirectory(target_.TreeFile().directory);
        const Snapshot& snapshot = *target_.InTree();
        if (!culture || !culture->culture) {
            return;
        }
        try {
            const auto missing =
                lm_edit::AddMissing(snapshot.GetTree(), *culture, snapshot.Reference(),
                                    {target_.TreeFile().scope}, keys);
            for (const lm_edit::FileChange& change : missing.changes) {
                if (change.path == snapshot.GetTree().FullPath(target_.File())) {
                    OfferIn(title, target_.Uri(), EditsBetween(document_.Bytes(), change.bytes));
                }
            }
        } catch (const std::exception&) {
            return;  // as long as a file has a mistake, nothing can be added
        }
    }

    void WriteForms(const Finding& finding) {
        const Operand* const pluralForm = OperandAt(finding.location.range.begin);
        const auto count = target_.InTree()->FormsOf(target_.File());
        if (pluralForm != nullptr && count && *count != 0) {
            Offer("Write " + std::to_string(*count) + (*count == 1 ? " form" : " forms"),
                  {{pluralForm->range, lm_edit::WithForms(document_, *pluralForm, *count)}});
        }
    }

    const Operand* OperandAt(std::uint32_t begin) const {
        for (const Entry& entry : document_.Entries()) {
            if (entry.isFaulty || begin < entry.key.begin || begin >= entry.end) {
                continue;
            }
            for (const Operand& operand : document_.OperandsOf(entry)) {
                if (operand.range.begin == begin) {
                    return &operand;
                }
            }
        }
        return nullptr;
    }

    /// The outermost plural form around a place of an entry.
    const Operand* FormAround(std::uint32_t at) const {
        for (const Entry& entry : document_.Entries()) {
            if (entry.isFaulty || at < entry.key.begin || at >= entry.end) {
                continue;
            }
            for (const Operand& operand : document_.ValueOf(entry)) {
                if (operand.kind == OperandKind::PluralForm && operand.range.begin < at &&
                    at < operand.range.end) {
                    return &operand;
                }
            }
        }
        return nullptr;
    }

    /// A reference that begins or ends every form says the same outside; any other has to be written
    /// out, if what it stands for can be.
    void TakeOut(const Finding& finding) {
        const Range reference = finding.location.range;
        const Operand* const pluralForm = FormAround(reference.begin);
        if (pluralForm == nullptr) {
            return;
        }
        const std::string name(document_.Bytes(reference));
        if (const auto text = Outside(*pluralForm, name, true)) {
            Offer("Take " + name + " out of the braces",
                  {{pluralForm->range, name + " + " + *text}});
        } else if (const auto before = Outside(*pluralForm, name, false)) {
            Offer("Take " + name + " out of the braces",
                  {{pluralForm->range, *before + " + " + name}});
        } else if (const auto meaning = MeaningOf(name)) {
            Offer("Write the text of " + name, {{reference, *meaning}});
        }
    }

    /// The plural form without a reference that all of its forms begin or end with.
    std::optional<std::string> Outside(const Operand& pluralForm, const std::string& name,
                                       bool isFirst) const {
        std::string text = "{$" + std::string(document_.Name(pluralForm)) + ": ";
        bool isNext = false;
        for (const Value form : FormsOf(pluralForm)) {
            const Operand* const first = FirstOf(form);
            const Operand* const last = LastOf(form);
            const Operand* const outer = isFirst ? first : last;
            if (outer == nullptr || outer->kind != OperandKind::KeyRef ||
                document_.LowerKey(document_.Name(*outer)) != document_.LowerKey(name)) {
                return std::nullopt;
            }
            std::string rest;
            for (const Operand& operand : form) {
                if (&operand != outer) {
                    rest.append(rest.empty() ? "" : " + ").append(document_.Bytes(operand.range));
                }
            }
            text.append(isNext ? ", " : "").append(rest.empty() ? "''" : rest);
            isNext = true;
        }
        return text + '}';
    }

    /// What a reference stands for, when it is the same for all cultures of the file and has no
    /// references in turn.
    std::optional<std::string> MeaningOf(const std::string& name) const {
        const Document* source = &document_;
        if (document_.Find(name) == nullptr) {
            const auto common = target_.InTree()->CommonOf(target_.File());
            source = common.size() == 1 ? target_.InTree()->Get(common.front()) : nullptr;
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

    /// A quote in the middle of a word ends the string there, and what follows is a mistake.
    void EscapeQuote(const Finding& finding) {
        for (const lm_source::Mistake& mistake : document_.Mistakes()) {
            if (!Touches(mistake.range, finding.location.range)) {
                continue;
            }
            for (const std::uint32_t after : {mistake.range.begin, mistake.entry}) {
                if (after == 0 || document_.Bytes()[after - 1] != '\'') {
                    continue;
                }
                const std::vector<Edit> edits = {{{after - 1, after - 1}, "\\"}};
                const Document mended(Apply(document_.Bytes(), edits));
                if (mended.Mistakes().size() < document_.Mistakes().size()) {
                    Offer("Escape the quote", edits);
                }
            }
        }
    }

    void Suppress(const Finding& finding) {
        const std::string lineBreak(lm_edit::LineBreakOf(document_));
        const std::string comment =
            std::string("; localize: ignore ") + lm_check::InfoOf(finding.rule).name + lineBreak;
        const std::string title = std::string("Ignore ") + lm_check::InfoOf(finding.rule).name;
        if (finding.location.range == Range()) {
            const std::uint32_t begin = document_.Content().begin;
            Offer(title + " in this file", {{{begin, begin}, comment + lineBreak}});
            return;
        }
        for (const Entry& entry : document_.Entries()) {
            const auto line = document_.Lines().RangeOf(document_.Bytes(),
                                                        document_.PlaceOf(entry.key.begin).line);
            const bool beginsLine =
                document_.Bytes({line.begin, entry.key.begin}).find_first_not_of(" \t") ==
                std::string_view::npos;
            if (beginsLine && entry.key.begin <= finding.location.range.begin &&
                finding.location.range.begin < entry.end) {
                Offer(title + " here", {{{line.begin, line.begin}, comment}});
            }
        }
    }

    /// A comment that names one rule goes as a whole, with its line if it has one of its own.
    void RemoveSuppression(std::uint32_t begin) {
        const auto comments = CommentsOf(document_);
        const auto found =
            std::find_if(comments.begin(), comments.end(),
                         [begin](const auto& comment) { return comment.range.begin == begin; });
        if (found == comments.end()) {
            return;  // the text has changed since
        }
        Range comment = found->range;
        if (document_.Bytes(comment).find(',') != std::string_view::npos) {
            return;  // which of its rules is meant, only the message says
        }
        const auto& lines = document_.Lines();
        const std::uint32_t number = lines.LineOf(comment.begin);
        const Range line = lines.RangeOf(document_.Bytes(), number);
        const std::string_view before = document_.Bytes({line.begin, comment.begin});
        const std::size_t last = before.find_last_not_of(" \t");
        comment.begin = last == std::string_view::npos
                            ? line.begin
                            : line.begin + static_cast<std::uint32_t>(last) + 1;
        if (last == std::string_view::npos && number < lines.Count()) {
            comment.end = lines.RangeOf(document_.Bytes(), number + 1).begin;
        }
        Offer("Remove the comment", {{comment, ""}});
    }

    void Accept(const Finding& finding) {
        const Snapshot& snapshot = *target_.InTree();
        const std::string before = snapshot.LockText();
        lm_check::TranslationLock lock(before);
        lm_check::CheckOptions options = snapshot.GetSettings().check;
        for (const lm_tree::CultureName& culture : snapshot.CulturesOf(target_.File())) {
            options.cultures.push_back(culture.name);
        }
        options.scopes = {target_.TreeFile().scope};
        lm_check::Accept(snapshot.GetTree(), options, {finding.key}, lock);
        OfferIn("Accept the text of " + finding.key,
                target_.GetWorkspace().UriOf(snapshot.LockPath()),
                EditsBetween(before, lock.Text()));
    }

    const Target& target_;
    const Document& document_;
    const Range range_;
    std::vector<std::string> missing_;
    std::vector<Finding> ignorable_;  // what mends is offered first
    Json actions_ = Json::array();
};

}  // namespace

Json CodeActionsFor(const Target& target, Range range, const Json& diagnostics) {
    if (target.InTree() == nullptr) {
        return Json::array();
    }
    Actions actions(target, range);
    actions.AddKnown(diagnostics);
    return actions.Find();
}

}  // namespace lm_lsp
