// What texts come to when their references are followed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "check/NameSets.h"
#include "plural/PluralRule.h"
#include "source/Document.h"

namespace lm_check {

/// Follows the references of a file as the engine does: to its own keys first, then to those of the
/// common texts. Chains may be as long as the file.
class Expansion {
public:
    /// What a text comes to.
    struct Text {
        NameSets::Set params = NameSets::kEmpty;  // that the program is to supply
        std::uint32_t size = 0;                   // in units, as the engine keeps it; or more
        bool isVisited = false;
        bool isComplete = true;  // else a mistake keeps part of it unknown
        bool beginsWithText = false;
        bool endsWithText = false;
    };

    enum class ProblemKind : std::uint8_t { UnknownReference, Cycle, TooLargeValue, TooLargeFile };

    /// Something that makes the engine refuse the file.
    struct Problem {
        ProblemKind kind{};
        std::size_t entry = 0;
        lm_source::Range range;  // of the reference, or of the key that grows too large
        std::vector<std::pair<std::size_t, lm_source::Range>>
            steps;  // of a cycle: entry, reference
    };

    /// @param common  what references to keys of no entry lead to; null for nothing. It must outlive
    ///                this.
    /// @param rule    null when it is not known.
    Expansion(const lm_source::Document& document, const Expansion* common,
              const lm_plural::PluralRule* rule, NameSets& names);

    const lm_source::Document& GetDocument() const noexcept { return *document_; }
    const Text& Of(std::size_t entry) const noexcept { return texts_[entry]; }
    const Text& Of(const lm_source::Entry& entry) const noexcept { return texts_[NumberOf(entry)]; }

    /// The text that a reference leads to; null when there is none.
    const Text* Target(std::string_view key) const;

    std::size_t NumberOf(const lm_source::Entry& entry) const noexcept {
        return static_cast<std::size_t>(&entry - document_->Entries().data());
    }

    /// In the order of the file.
    const std::vector<Problem>& Problems() const noexcept { return problems_; }

private:
    /// An entry whose references are being followed.
    struct Visit {
        std::size_t entry;
        lm_source::Value::Iterator next;
        lm_source::Value::Iterator end;
        bool expands;
        bool isEmpty = true;
        Text text{};
    };

    void Run();
    void Open(std::size_t number);
    void Follow(std::size_t first);
    void Reach(Visit& visit, const lm_source::Operand& operand);
    void Join(Visit& visit, const Text& part);
    void Close(Visit& visit);
    void ReportCycle(std::size_t target, const lm_source::Operand& reference);
    void AddParams(const lm_source::Entry& entry, Text& text);
    std::uint32_t SizeOf(const lm_source::Operand& operand) const;

    const lm_source::Document* document_;
    const Expansion* common_;
    const lm_plural::PluralRule* rule_;
    NameSets* names_;
    std::vector<Text> texts_;
    std::vector<Visit> visits_;
    std::vector<bool> isOpen_;
    std::vector<Problem> problems_;
    std::size_t expandedSize_ = 0;
    bool isExact_ = false;  // else sizes are counted in bytes, which are at least as many
};

}  // namespace lm_check
