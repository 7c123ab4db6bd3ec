#include "check/Expansion.h"

#include <algorithm>
#include <limits>

#include "TextCode.h"
#include "check/FormWalk.h"
#include "expansion_limits.h"
#include "localization_manager/host/DerivedParam.h"

namespace lm_check {

using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using localization_manager::host::SuppliedParam;
using LocalizationManager::StringLocalizing::Compiling::kMaxExpandedDictionary;
using LocalizationManager::StringLocalizing::Compiling::kMaxExpandedValue;
using LocalizationManager::StringLocalizing::Model::kLengthUnits;

namespace {

/// What an operand takes beside its text: its kind, and a length.
constexpr std::uint32_t kOperandUnits = 1 + kLengthUnits;

std::uint32_t Sum(std::uint32_t left, std::uint32_t right) {
    return left > std::numeric_limits<std::uint32_t>::max() - right
               ? std::numeric_limits<std::uint32_t>::max()
               : left + right;
}

bool HasReference(lm_source::Value value) {
    return std::any_of(value.begin(), value.end(),
                       [](const Operand& operand) { return operand.kind == OperandKind::KeyRef; });
}

}  // namespace

Expansion::Expansion(const lm_source::Document& document, const Expansion* common,
                     const lm_plural::PluralRule* rule, NameSets& names)
    : document_(&document), common_(common), rule_(rule), names_(&names) {
    Run();
    const auto isSize = [](const Problem& problem) {
        return problem.kind == ProblemKind::TooLargeValue ||
               problem.kind == ProblemKind::TooLargeFile;
    };
    if (std::any_of(problems_.begin(), problems_.end(), isSize)) {
        isExact_ = true;
        Run();
    }
    visits_.shrink_to_fit();
}

void Expansion::Run() {
    texts_.assign(document_->Entries().size(), Text());
    isOpen_.assign(document_->Entries().size(), false);
    problems_.clear();
    expandedSize_ = 0;
    for (std::size_t entry = 0; entry < texts_.size(); ++entry) {
        Follow(entry);
    }
    std::sort(problems_.begin(), problems_.end(), [](const Problem& left, const Problem& right) {
        return left.range.begin < right.range.begin;
    });
}

const Expansion::Text* Expansion::Target(std::string_view key) const {
    if (const Entry* own = document_->Find(key)) {
        return &Of(*own);
    }
    return common_ != nullptr ? common_->Target(key) : nullptr;
}

void Expansion::Open(std::size_t number) {
    const Entry& entry = document_->Entries()[number];
    const lm_source::Value value = document_->ValueOf(entry);
    Visit visit{number, entry.isFaulty ? value.end() : value.begin(), value.end(),
                HasReference(value)};
    visit.text.isComplete = !entry.isFaulty;
    if (!entry.isFaulty) {
        AddParams(entry, visit.text);
    }
    isOpen_[number] = true;
    visits_.push_back(visit);
}

void Expansion::Follow(std::size_t first) {
    if (texts_[first].isVisited) {
        return;
    }
    Open(first);
    while (!visits_.empty()) {
        const std::size_t depth = visits_.size() - 1;
        while (visits_[depth].next != visits_[depth].end) {
            const Operand& operand = *visits_[depth].next;
            const Entry* const target = operand.kind == OperandKind::KeyRef
                                            ? document_->Find(document_->Name(operand))
                                            : nullptr;
            if (target != nullptr && !texts_[NumberOf(*target)].isVisited &&
                !isOpen_[NumberOf(*target)]) {
                Open(NumberOf(*target));
                break;  // and meet the reference again afterwards
            }
            Reach(visits_[depth], operand);
            ++visits_[depth].next;
        }
        if (visits_.size() == depth + 1) {
            Close(visits_.back());
            visits_.pop_back();
        }
    }
}

/// Adds an operand to the text of the innermost entry. What it refers to is known.
void Expansion::Reach(Visit& visit, const Operand& operand) {
    if (operand.kind != OperandKind::KeyRef) {
        Text part;
        part.size = SizeOf(operand);
        part.beginsWithText = part.endsWithText = operand.kind == OperandKind::Text;
        Join(visit, part);
        return;
    }
    const std::string_view key = document_->Name(operand);
    const Entry* const own = document_->Find(key);
    if (own != nullptr && isOpen_[NumberOf(*own)]) {
        ReportCycle(NumberOf(*own), operand);
        visit.text.isComplete = false;
        return;
    }
    const Text* const target = Target(key);
    if (target == nullptr) {
        problems_.push_back({ProblemKind::UnknownReference, visit.entry, operand.range, {}});
        visit.text.isComplete = false;
        return;
    }
    Join(visit, *target);
}

/// Texts that meet become one.
void Expansion::Join(Visit& visit, const Text& part) {
    Text& text = visit.text;
    const bool meet = !visit.isEmpty && text.endsWithText && part.beginsWithText;
    const std::uint32_t added = part.size - (meet ? kOperandUnits : 0);
    const std::size_t before = text.size;
    text.size = Sum(text.size, added);
    text.beginsWithText = visit.isEmpty ? part.beginsWithText : text.beginsWithText;
    text.endsWithText = part.endsWithText;
    text.isComplete = text.isComplete && part.isComplete;
    visit.isEmpty = false;
    if (!visit.expands) {
        return;
    }
    const bool wasSmall = expandedSize_ <= kMaxExpandedDictionary;
    expandedSize_ += added;
    const lm_source::Range key = document_->Entries()[visit.entry].key;
    if (before <= kMaxExpandedValue && text.size > kMaxExpandedValue) {
        problems_.push_back({ProblemKind::TooLargeValue, visit.entry, key, {}});
    }
    if (wasSmall && expandedSize_ > kMaxExpandedDictionary) {
        problems_.push_back({ProblemKind::TooLargeFile, visit.entry, key, {}});
    }
    // Beyond the limit nobody asks which parameters there are, and sets could grow without end.
    if (expandedSize_ > kMaxExpandedDictionary) {
        text.isComplete = false;
    } else {
        text.params = names_->Union(text.params, part.params);
    }
}

void Expansion::Close(Visit& visit) {
    visit.text.isVisited = true;
    texts_[visit.entry] = visit.text;
    isOpen_[visit.entry] = false;
}

void Expansion::ReportCycle(std::size_t target, const Operand& reference) {
    Problem problem{ProblemKind::Cycle, target, {}, {}};
    const auto first = std::find_if(visits_.begin(), visits_.end(),
                                    [target](const Visit& visit) { return visit.entry == target; });
    for (auto visit = first; visit != visits_.end(); ++visit) {
        const bool isLast = visit + 1 == visits_.end();
        problem.steps.emplace_back(visit->entry, isLast ? reference.range : visit->next->range);
    }
    problem.range = problem.steps.front().second;
    problems_.push_back(std::move(problem));
}

/// The parameters that the entry itself asks for, in forms that a number can select.
void Expansion::AddParams(const Entry& entry, Text& text) {
    NameSets::Members members;
    FormWalk walk(*document_, rule_);
    auto visit = [&](const Operand& operand, bool isLive, std::size_t /*depth*/) {
        if (isLive &&
            (operand.kind == OperandKind::Param || operand.kind == OperandKind::PluralForm)) {
            members.push_back(names_->NameOf(SuppliedParam(document_->Name(operand))));
        }
    };
    walk.Operands(document_->ValueOf(entry), visit);
    if (!members.empty()) {
        text.params = names_->SetOf(std::move(members));
    }
}

/// In units, or in bytes, which are never fewer.
std::uint32_t Expansion::SizeOf(const Operand& operand) const {
    if (operand.kind == OperandKind::Text) {
        return kOperandUnits + (isExact_ ? lm_source::CountUnits(document_->Text(operand))
                                         : operand.range.size() - 2);
    }
    std::uint32_t size = kOperandUnits + document_->NameRange(operand).size();
    if (operand.kind == OperandKind::PluralForm) {
        size = Sum(size, kLengthUnits);
        for (const lm_source::Value form : FormsOf(operand)) {
            size = Sum(size, kLengthUnits);
            for (const Operand& inner : form) {
                size = Sum(size, SizeOf(inner));
            }
        }
    }
    return size;
}

}  // namespace lm_check
