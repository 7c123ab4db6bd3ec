#include "check/FormWalk.h"
#include "check/families.h"
#include "expansion_limits.h"

namespace lm_check {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using Problem = Expansion::Problem;
using ProblemKind = Expansion::ProblemKind;

namespace {

void AddUnknown(const Subject& subject, const Problem& problem, Collector& out) {
    if (subject.file.HasGaps() || subject.LacksCommonTexts()) {
        return;  // what a mistake hides may be there after all
    }
    const Document& document = subject.file.document;
    const std::string key(document.Bytes(problem.range));
    std::string message = "'" + key + "' is neither a key of this file nor of the common texts";
    if (subject.requests.empty() || subject.requests.front().scope == Plan::kCommon) {
        message = "'" + key +
                  "' is no key of this file, and a text of the common file cannot refer to one of "
                  "another";
    }
    out.Add(Rule::UnknownReference, subject.Source(), problem.range,
            document.Key(document.Entries()[problem.entry]), subject.requests,
            message + ": correct the name, or add the key");
}

void AddCycle(const Subject& subject, const Problem& problem, Collector& out) {
    const Document& document = subject.file.document;
    const SourceView source = subject.Source();
    std::string chain;
    for (const auto& [entry, range] : problem.steps) {
        chain.append(document.Key(document.Entries()[entry])).append(" \xE2\x86\x92 ");
    }
    const std::string_view key = document.Key(document.Entries()[problem.entry]);
    Finding* const finding =
        out.Add(Rule::ReferenceCycle, source, problem.range, key, subject.requests,
                "references lead back to where they began: " + chain.append(key) +
                    "; write out the text in one of them");
    if (finding == nullptr) {
        return;
    }
    for (std::size_t i = 1; i < problem.steps.size(); ++i) {
        const auto& [entry, range] = problem.steps[i];
        finding->related.push_back(
            {source.At(range), "and " + std::string(document.Key(document.Entries()[entry])) +
                                   " refers to " + std::string(document.Bytes(range))});
    }
}

void AddTooLarge(const Subject& subject, const Problem& problem, Collector& out) {
    using namespace LocalizationManager::StringLocalizing::Compiling;
    const Document& document = subject.file.document;
    const bool isValue = problem.kind == ProblemKind::TooLargeValue;
    out.Add(Rule::TooLarge, subject.Source(), problem.range,
            document.Key(document.Entries()[problem.entry]), subject.requests,
            isValue ? "references make the text longer than " + std::to_string(kMaxExpandedValue) +
                          " characters: refer to fewer or shorter texts"
                    : "references make the texts of the file longer than " +
                          std::to_string(kMaxExpandedDictionary) +
                          " characters in all: refer to fewer or shorter texts");
}

void AddInForms(const Subject& subject, Collector& out) {
    const Document& document = subject.file.document;
    const SourceView source = subject.Source();
    for (const Entry& entry : document.Entries()) {
        if (entry.isFaulty) {
            continue;
        }
        FormWalk walk(document, subject.rule.Rule());
        auto visit = [&](const Operand& operand, bool isLive, std::size_t depth) {
            if (operand.kind != OperandKind::KeyRef || depth == 0) {
                return;
            }
            std::string message =
                "a reference does not work inside { }: take it out of the braces, or write the "
                "text there";
            if (isLive) {
                out.Add(Rule::ReferenceInForm, source, operand.range, document.Key(entry),
                        subject.requests, std::move(message));
            } else {
                out.AddWarning(Rule::ReferenceInForm, source, operand.range, document.Key(entry),
                               subject.requests, std::move(message));
            }
        };
        walk.Operands(document.ValueOf(entry), visit);
    }
}

}  // namespace

void CheckReferences(const Subject& subject, Collector& out) {
    for (const Problem& problem : subject.expansion.Problems()) {
        switch (problem.kind) {
            case ProblemKind::UnknownReference:
                AddUnknown(subject, problem, out);
                break;
            case ProblemKind::Cycle:
                AddCycle(subject, problem, out);
                break;
            case ProblemKind::TooLargeValue:
            case ProblemKind::TooLargeFile:
                AddTooLarge(subject, problem, out);
                break;
        }
    }
    AddInForms(subject, out);
}

}  // namespace lm_check
