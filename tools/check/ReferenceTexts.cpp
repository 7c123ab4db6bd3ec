#include "check/ReferenceTexts.h"

#include <array>

namespace lm_check {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;

namespace {

/// FNV-1a, which is the same everywhere and at any time.
class Hasher {
public:
    void Add(std::string_view text) {
        for (const char byte : text) {
            Add(static_cast<unsigned char>(byte));
        }
        Add(kEnd);
    }
    void Add(std::uint64_t value) { hash_ = (hash_ ^ value) * 1'099'511'628'211U; }
    std::uint64_t Result() const noexcept { return hash_; }

private:
    static constexpr std::uint64_t kEnd = 256;  // no byte

    std::uint64_t hash_ = 14'695'981'039'346'656'037U;
};

void AddValue(Hasher& hasher, const Document& document, lm_source::Value value) {
    for (const Operand& operand : value) {
        hasher.Add(static_cast<std::uint64_t>(operand.kind));
        if (operand.kind == OperandKind::Text) {
            hasher.Add(document.Bytes(operand.range));
        } else if (operand.kind == OperandKind::KeyRef) {
            hasher.Add(document.LowerKey(document.Name(operand)));
        } else {
            hasher.Add(document.Name(operand));
        }
        if (operand.kind == OperandKind::PluralForm) {
            for (const lm_source::Value form : FormsOf(operand)) {
                AddValue(hasher, document, form);
                hasher.Add(std::string_view());
            }
        }
    }
}

/// Blanks that texts are joined with; a sign that forbids a line break counts, too.
constexpr std::array<std::string_view, 6> kBlanks = {
    " ", "\t", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89", "\xE3\x80\x80"};

bool StartsWith(std::string_view text, std::string_view part) {
    return text.substr(0, part.size()) == part;
}

bool EndsWith(std::string_view text, std::string_view part) {
    return text.size() >= part.size() && text.substr(text.size() - part.size()) == part;
}

template <class HasAtEnd>
OuterSpace SpaceOf(std::string_view text, HasAtEnd hasAtEnd) {
    if (hasAtEnd(text, "\n") || hasAtEnd(text, "\r")) {
        return OuterSpace::LineBreak;
    }
    for (const std::string_view blank : kBlanks) {
        if (hasAtEnd(text, blank)) {
            return OuterSpace::Blank;
        }
    }
    return OuterSpace::None;
}

}  // namespace

std::uint64_t HashOf(const Document& document, const Entry& entry) {
    Hasher hasher;
    AddValue(hasher, document, document.ValueOf(entry));
    return hasher.Result();
}

OuterSpace SpaceBefore(const Document& document, lm_source::Value value) {
    while (!value.empty()) {
        const Operand& first = *value.begin();
        if (first.kind == OperandKind::Text) {
            return SpaceOf(document.Text(first), &StartsWith);
        }
        const auto forms = FormsOf(first);
        if (forms.empty()) {
            break;
        }
        value = forms.front();
    }
    return OuterSpace::None;
}

OuterSpace SpaceAfter(const Document& document, lm_source::Value value) {
    while (!value.empty()) {
        const Operand* last = nullptr;
        for (const Operand& operand : value) {
            last = &operand;
        }
        if (last->kind == OperandKind::Text) {
            return SpaceOf(document.Text(*last), &EndsWith);
        }
        const auto forms = FormsOf(*last);
        if (forms.empty()) {
            break;
        }
        value = forms.front();
    }
    return OuterSpace::None;
}

ReferenceScope::ReferenceScope(const Expansion& expansion) {
    const Document& document = expansion.GetDocument();
    std::size_t size = 16;
    while (size < 2 * document.Entries().size()) {
        size *= 2;
    }
    slots_.assign(size, 0);
    texts_.reserve(document.Entries().size());
    for (const Entry& entry : document.Entries()) {
        const std::string_view key = document.Key(entry);
        if (Find(key) != nullptr) {
            continue;
        }
        const Expansion::Text& text = expansion.Of(entry);
        const lm_source::Value value = document.ValueOf(entry);
        texts_.push_back({static_cast<std::uint32_t>(keys_.size()),
                          static_cast<std::uint32_t>(key.size()), HashOf(document, entry),
                          text.params, SpaceBefore(document, value), SpaceAfter(document, value),
                          text.isComplete});
        keys_ += key;
        slots_[SlotOf(key)] = static_cast<std::uint32_t>(texts_.size());
    }
}

const ReferenceText* ReferenceScope::Find(std::string_view key) const {
    if (slots_.empty()) {
        return nullptr;
    }
    const std::uint32_t number = slots_[SlotOf(key)];
    return number != 0 ? &texts_[number - 1] : nullptr;
}

std::size_t ReferenceScope::SlotOf(std::string_view key) const {
    std::size_t slot = case_.HashOf(key) & (slots_.size() - 1);
    while (slots_[slot] != 0 && !case_.AreEqual(KeyOf(texts_[slots_[slot] - 1]), key)) {
        slot = (slot + 1) & (slots_.size() - 1);
    }
    return slot;
}

}  // namespace lm_check
