#include <algorithm>

#include "check/families.h"
#include "source/variant_key.h"

namespace lm_check {

using lm_source::Document;
using lm_source::Entry;

namespace {

bool IsThere(const Subject& subject, std::string_view key) {
    return subject.file.document.Find(key) != nullptr ||
           (subject.common != nullptr && subject.common->document.Find(key) != nullptr);
}

/// Whether a key is a variant of another text. Which ones there are is up to each language.
template <class Reference>
bool IsVariant(std::string_view key, const Reference& reference) {
    const std::string_view base = lm_source::BaseOfVariant(key);
    return !base.empty() && reference.Find(base) != nullptr;
}

/// @param file  that the key belongs into.
void AddMissing(const Subject& subject, const TextFile& file, const ReferenceScope& reference,
                Collector& out) {
    if (subject.file.HasGaps() || subject.LacksCommonTexts()) {
        return;  // a mistake may hide the key
    }
    for (const ReferenceText& text : reference.Texts()) {
        const std::string_view key = reference.KeyOf(text);
        if (!IsThere(subject, key) && !IsVariant(key, reference)) {
            out.AddWhole(Rule::MissingKey, file.file.side, file.file.path, subject.requests,
                         "the key " + std::string(key) +
                             " of the reference is missing: add it (a file is never completed by "
                             "another one)",
                         key);
        }
    }
}

const char* NameOf(OuterSpace space) {
    switch (space) {
        case OuterSpace::None:
            return "no white space";
        case OuterSpace::Blank:
            return "a blank";
        case OuterSpace::LineBreak:
            return "a line break";
    }
    return "";
}

void CompareSpace(const Subject& subject, const Entry& entry, const ReferenceText& reference,
                  Collector& out) {
    const Document& document = subject.file.document;
    const lm_source::Value value = document.ValueOf(entry);
    const OuterSpace before = SpaceBefore(document, value);
    const OuterSpace after = SpaceAfter(document, value);
    if (before == reference.before && after == reference.after) {
        return;
    }
    const bool isBefore = before != reference.before;
    Range range = value.begin()->range;
    if (!isBefore) {
        for (const lm_source::Operand& operand : value) {
            range = operand.range;
        }
    }
    out.Add(Rule::OuterSpace, subject.Source(), range, document.Key(entry), subject.requests,
            std::string(isBefore ? "the text begins with " : "the text ends with ") +
                NameOf(isBefore ? before : after) + ", the reference text with " +
                NameOf(isBefore ? reference.before : reference.after) +
                ": texts that are put together may need it");
}

/// Whether a text has letters, so that it is likely to differ between languages.
bool HasLetters(const Document& document, const Entry& entry) {
    const auto operands = document.OperandsOf(entry);
    return std::any_of(operands.begin(), operands.end(), [&](const auto& operand) {
        const std::string text = document.Text(operand);
        return std::any_of(text.begin(), text.end(), [](char unit) {
            return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') ||
                   static_cast<unsigned char>(unit) >= 0x80;
        });
    });
}

void CheckHistory(const Subject& subject, const Entry& entry, const ReferenceText& reference,
                  Collector& out) {
    const Document& document = subject.file.document;
    const bool hasLock = !subject.lock.empty() && !subject.plan.tree.HasAlternative();
    if (hasLock && out.Wants(Rule::Stale)) {
        const auto accepted = subject.lock.Find(
            subject.file.file.directory + '/' + subject.file.file.scope, document.LowerKey(entry));
        if (accepted && *accepted != reference.hash) {
            out.Add(Rule::Stale, subject.Source(), entry.key, document.Key(entry), subject.requests,
                    "the reference text has changed since this one was accepted: compare them, "
                    "then run 'localize accept'");
        }
    }
    if (out.Wants(Rule::Unchanged) && HasLetters(document, entry) &&
        HashOf(document, entry) == reference.hash) {
        out.Add(Rule::Unchanged, subject.Source(), entry.key, document.Key(entry), subject.requests,
                "the text is the same as the reference text: translate it");
    }
}

}  // namespace

void CheckKeys(const Subject& subject, Collector& out) {
    const ReferenceView& reference = subject.reference;
    // A common key that is missing belongs into the common file.
    if (reference.own != nullptr) {
        AddMissing(subject, subject.file, *reference.own, out);
    }
    if (reference.common != nullptr) {
        AddMissing(subject, subject.common != nullptr ? *subject.common : subject.file,
                   *reference.common, out);
    }
    if (subject.isReference) {
        return;
    }
    const Document& document = subject.file.document;
    for (const Entry& entry : document.Entries()) {
        if (entry.isFaulty) {
            continue;
        }
        const ReferenceText* const text = reference.Find(document.Key(entry));
        if (text == nullptr && !IsVariant(document.Key(entry), reference)) {
            out.Add(Rule::ExtraKey, subject.Source(), entry.key, document.Key(entry),
                    subject.requests,
                    "the reference has no such key here: remove it, or correct its name");
        } else if (text != nullptr) {
            CompareSpace(subject, entry, *text, out);
            CheckHistory(subject, entry, *text, out);
        }
    }
}

}  // namespace lm_check
