#include "lsp/completion.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "edit/plural_forms.h"
#include "lsp/places.h"
#include "tree/ascii_case.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Range;

namespace {

// Numbers of the protocol.
constexpr int kField = 5;
constexpr int kVariable = 6;
constexpr int kSnippet = 15;
constexpr int kReference = 18;

constexpr std::size_t kMost = 300;  // items; the editor asks again when more is typed
constexpr std::size_t kLongestDetail = 80;

constexpr std::string_view kBlanks = " \t\r\n";

bool IsWordUnit(char unit) {
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') ||
           (unit >= '0' && unit <= '9') || unit == '_' || unit == '.';
}

enum class Context { Nothing, Key, Value, Param, Form };

struct Place {
    Context context = Context::Nothing;
    Range word;   // that is being typed; of a parameter without its "$"
    Range whole;  // what an item takes the place of: the word, of a form with its braces
};

/// The word of a form with the brace that opens it, and the one that editors write behind. Empty where the word
/// follows no brace, or where the form has been written already.
std::optional<Range> FormAt(const Document& document, Range word) {
    const std::string_view before = document.Bytes().substr(0, word.begin);
    const std::string_view after = document.Bytes().substr(word.end);
    const bool isClosed = !after.empty() && after.front() == '}';
    if (before.empty() || before.back() != '{' ||
        !(isClosed || after.empty() || kBlanks.find(after.front()) != std::string_view::npos)) {
        return std::nullopt;
    }
    return Range{word.begin - 1, word.end + (isClosed ? 1U : 0U)};
}

/// Where a text is being typed it is rarely right, so that this goes by what stands before the place.
Place PlaceAt(const Document& document, std::uint32_t offset) {
    const std::string_view before = document.Bytes().substr(0, offset);
    std::size_t begin = offset;
    while (begin != 0 && IsWordUnit(before[begin - 1])) {
        --begin;
    }
    const std::size_t lineBreak = before.find_last_of("\r\n");
    const std::size_t line =
        lineBreak == std::string_view::npos ? document.Content().begin : lineBreak + 1;
    bool isInString = false;
    for (std::size_t at = line; at < begin; ++at) {
        if (isInString && before[at] == '\\') {
            ++at;
        } else if (before[at] == '\'') {
            isInString = !isInString;
        } else if (before[at] == ';' && !isInString) {
            return {};
        }
    }
    if (isInString) {
        return {};
    }
    const Range word = {static_cast<std::uint32_t>(begin), offset};
    if (begin != 0 && before[begin - 1] == '$') {
        return {Context::Param, word, word};
    }
    if (const auto form = FormAt(document, word)) {
        return {Context::Form, word, *form};
    }
    const std::size_t last = before.substr(0, begin).find_last_not_of(kBlanks);
    if (last != std::string_view::npos &&
        std::string_view("=+,:").find(before[last]) != std::string_view::npos) {
        return {Context::Value, word, word};
    }
    const bool beginsLine = last == std::string_view::npos || last < line || begin == line;
    return beginsLine ? Place{Context::Key, word, word} : Place{};
}

std::string SourceOf(const Document& document, const Entry& entry) {
    const lm_source::Value value = document.ValueOf(entry);
    if (value.empty()) {
        return {};
    }
    const auto text = document.Bytes({value.begin()->range.begin, entry.end});
    if (text.size() <= kLongestDetail) {
        return std::string(text);
    }
    std::size_t cut = kLongestDetail;
    while ((static_cast<unsigned char>(text[cut]) & 0xC0U) == 0x80) {
        --cut;  // not inside a character
    }
    return std::string(text.substr(0, cut)) + "\u2026";
}

class Completion {
public:
    Completion(const Target& target, std::uint32_t offset, bool takesSnippets)
        : target_(target),
          document_(target.Document()),
          offset_(offset),
          place_(PlaceAt(document_, offset)),
          typed_(lm_tree::LowerAscii(document_.Bytes(place_.word))),
          takesSnippets_(takesSnippets) {}

    Json Items() {
        switch (place_.context) {
            case Context::Nothing:
                break;
            case Context::Key:
                AddMissing();
                break;
            case Context::Param:
                AddParams("");
                break;
            case Context::Form:
                AddForms();
                break;
            case Context::Value:
                AddKeys();
                AddParams("$");
                AddForms();
                break;
        }
        return {{"isIncomplete", isCut_}, {"items", std::move(items_)}};
    }

private:
    /// @param rank  what comes first in the list.
    void Add(std::string label, int kind, char rank, std::string text, Json further) {
        if (lm_tree::LowerAscii(label).find(typed_) == std::string::npos) {
            return;
        }
        if (items_.size() == kMost) {
            isCut_ = true;
            return;
        }
        Json item = std::move(further);
        item["sortText"] = rank + label;
        item["filterText"] = label;
        item["kind"] = kind;
        item["textEdit"] = EditOf(document_, place_.whole, std::move(text));
        item["label"] = std::move(label);
        items_.push_back(std::move(item));
    }

    void AddKeysOf(const Document& document, char rank) {
        for (const Entry& entry : document.Entries()) {
            std::string key(document.Key(entry));
            if (known_.insert(document.LowerKey(entry)).second) {
                Add(key, kReference, rank, key, {{"detail", SourceOf(document, entry)}});
            }
        }
    }

    /// The last entry that begins before the place; null for none.
    const Entry* TypedEntry() const {
        const auto& entries = document_.Entries();
        const auto after = std::upper_bound(
            entries.begin(), entries.end(), offset_,
            [](std::uint32_t at, const Entry& entry) { return at < entry.key.begin; });
        return after != entries.begin() ? &*std::prev(after) : nullptr;
    }

    void AddKeys() {
        if (const Entry* const typed = TypedEntry()) {
            known_.insert(document_.LowerKey(*typed));  // a text cannot refer to itself
        }
        AddKeysOf(document_, '1');
        for (const Document* const common : CommonTexts()) {
            AddKeysOf(*common, '2');
        }
    }

    std::vector<const Document*> CommonTexts() const {
        std::vector<const Document*> texts;
        const Snapshot* const snapshot = target_.InTree();
        for (const lm_tree::FileId common : snapshot != nullptr ? snapshot->CommonOf(target_.File())
                                                                : std::vector<lm_tree::FileId>()) {
            if (const Document* const document = snapshot->Get(common)) {
                texts.push_back(document);
            }
        }
        return texts;
    }

    /// The file of the reference culture; null when it is the one that is typed.
    const Document* Reference() const {
        const Snapshot* const snapshot = target_.InTree();
        if (snapshot == nullptr) {
            return nullptr;
        }
        const auto file =
            snapshot->GetTree().Answer(snapshot->Reference(), target_.TreeFile().scope);
        return file != target_.File() ? snapshot->Get(file) : nullptr;
    }

    /// The parameters of the reference text, also of the texts that it refers to; each with whether it
    /// chooses forms.
    std::map<std::string, bool> Params() const {
        std::map<std::string, bool> params;
        const Document* const reference = Reference();
        const Entry* const typed = TypedEntry();
        if (typed == nullptr || reference == nullptr) {
            return params;
        }
        std::vector<const Document*> sources = {reference};
        const Snapshot& snapshot = *target_.InTree();
        if (const Document* const common = snapshot.Get(
                snapshot.GetTree().Answer(snapshot.Reference(), lm_tree::CommonScope()))) {
            sources.push_back(common);
        }
        std::set<std::string> met;
        std::vector<std::string> keys = {std::string(document_.Key(*typed))};
        while (!keys.empty()) {
            const std::string key = reference->LowerKey(keys.back());
            keys.pop_back();
            if (met.insert(key).second) {
                Collect(sources, key, params, keys);
            }
        }
        return params;
    }

    static void Collect(const std::vector<const Document*>& sources, const std::string& key,
                        std::map<std::string, bool>& params, std::vector<std::string>& keys) {
        for (const Document* const source : sources) {
            const Entry* const entry = source->Find(key);
            if (entry == nullptr) {
                continue;
            }
            for (const Operand& operand : source->OperandsOf(*entry)) {
                const std::string name(source->Name(operand));
                if (operand.kind == OperandKind::KeyRef) {
                    keys.push_back(name);
                } else if (operand.kind != OperandKind::Text && !name.empty()) {
                    bool& choosesForms = params[name];
                    choosesForms = choosesForms || operand.kind == OperandKind::PluralForm;
                }
            }
            return;
        }
    }

    void AddParams(const std::string& sign) {
        for (const auto& [name, choosesForms] : Params()) {
            Add(sign + name, kVariable, '0', sign + name, {{"detail", "parameter"}});
        }
    }

    void AddForms() {
        const Snapshot* const snapshot = target_.InTree();
        const auto count = snapshot != nullptr ? snapshot->FormsOf(target_.File()) : std::nullopt;
        if (!count || *count == 0) {
            return;
        }
        for (const auto& [name, choosesForms] : Params()) {
            if (!choosesForms) {
                continue;
            }
            std::string text = takesSnippets_ ? "{\\$" + name + ": " : "{$" + name + ": ";
            for (std::size_t form = 1; form <= *count; ++form) {
                text += form == 1 ? "" : ", ";
                text += takesSnippets_ ? "'${" + std::to_string(form) + "}'" : "''";
            }
            text += takesSnippets_ ? "\\}" : "}";
            Add("{$" + name + ": }", kSnippet, '3', text,
                {{"detail", std::to_string(*count) + (*count == 1 ? " form" : " forms")},
                 {"insertTextFormat", takesSnippets_ ? 2 : 1}});
        }
    }

    void AddMissing() {
        const Document* const reference = Reference();
        if (reference == nullptr) {
            return;
        }
        const auto count = target_.InTree()->FormsOf(target_.File());
        const auto common = CommonTexts();
        for (const Entry& entry : reference->Entries()) {
            const std::string_view key = reference->Key(entry);
            const auto isIn = [key](const Document* texts) { return texts->Find(key) != nullptr; };
            if (document_.Find(key) != nullptr || entry.isFaulty ||
                std::any_of(common.begin(), common.end(), isIn)) {
                continue;
            }
            std::string text = count && *count != 0
                                   ? lm_edit::EntryWithForms(*reference, entry, *count, "\n")
                                   : std::string(reference->Bytes(Document::RangeOf(entry)));
            while (!text.empty() && text.back() == '\n') {
                text.pop_back();
            }
            Add(std::string(key), kField, '0', std::move(text),
                {{"detail", "missing: " + SourceOf(*reference, entry)}});
        }
    }

    const Target& target_;
    const Document& document_;
    const std::uint32_t offset_;
    const Place place_;
    const std::string typed_;
    const bool takesSnippets_;
    std::set<std::string> known_;
    Json items_ = Json::array();
    bool isCut_ = false;
};

}  // namespace

Json CompletionAt(const Target& target, std::uint32_t offset, bool takesSnippets) {
    return Completion(target, offset, takesSnippets).Items();
}

}  // namespace lm_lsp
