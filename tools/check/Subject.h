// A file that is judged for the cultures that it answers in the same way.
#pragma once

#include <string>
#include <vector>

#include "check/Collector.h"
#include "check/Expansion.h"
#include "check/Plan.h"
#include "check/ReferenceTexts.h"
#include "check/TextFile.h"
#include "check/TranslationLock.h"

namespace lm_check {

/// The texts of the reference for a scope: its own, then the common ones.
struct ReferenceView {
    const ReferenceScope* own = nullptr;     // null for the common scope
    const ReferenceScope* common = nullptr;  // null when the reference has none
    const NameSets* names = nullptr;

    const ReferenceText* Find(std::string_view key) const {
        const ReferenceText* found = own != nullptr ? own->Find(key) : nullptr;
        return found != nullptr || common == nullptr ? found : common->Find(key);
    }
};

/// What the rules see of one judgement. All of it outlives the judgement.
struct Subject {
    const Plan& plan;
    const TextFile& file;              // that answers
    const TextFile* common = nullptr;  // the common texts; null for none, or when `file` is them
    const Expansion& expansion;        // of `file`
    const Expansion* commonExpansion = nullptr;
    const RuleSource& rule;
    std::vector<Request> requests;  // of one scope
    ReferenceView reference;
    bool isReference = false;  // whether the file is the reference itself
    NameSets& names;
    const TranslationLock& lock;

    /// Whether the common texts are not there, or not all of them can be read. That is said where
    /// they belong, and not of every text that needs one.
    bool LacksCommonTexts() const {
        return common != nullptr ? common->HasGaps() : requests.front().scope != Plan::kCommon;
    }

    SourceView Source() const { return ViewOf(file); }
    static SourceView ViewOf(const TextFile& text) {
        return {text.file, text.document.Bytes(), text.document.Lines()};
    }
};

}  // namespace lm_check
