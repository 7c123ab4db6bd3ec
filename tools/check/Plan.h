// Which requests are judged, and which files answer them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "check/CheckOptions.h"
#include "check/Collector.h"
#include "check/Finding.h"
#include "plural/PluralRule.h"
#include "source/LineTable.h"
#include "source/rule_mistake.h"
#include "tree/Tree.h"

namespace lm_check {

/// A plural rule, and where it comes from.
struct RuleSource {
    std::optional<lm_tree::FileId> file;  // empty for one of the engine's
    std::string bytes;                    // of the file
    Range content;
    lm_source::LineTable lines;
    std::optional<lm_source::RuleMistake> mistake;
    std::optional<lm_plural::PluralRule> rule;  // empty when there is a mistake

    const lm_plural::PluralRule* Rule() const { return rule ? &*rule : nullptr; }
};

/// Does not change once it is made.
class Plan {
public:
    static constexpr std::size_t kCommon = 0;  // the number of the common scope

    /// @throws std::invalid_argument for a culture or scope that does not exist.
    Plan(const lm_tree::Tree& tree, const CheckOptions& options);

    const lm_tree::Tree& tree;
    const CheckOptions& options;
    lm_tree::CultureName reference;
    std::vector<lm_tree::CultureName> cultures;
    std::vector<std::string> scopes;  // of the reference, the common one first
    std::vector<bool> isJudged;       // of each scope
    std::vector<RuleSource> rules;
    std::vector<std::size_t> ruleOf;  // of each culture

    using Answer = std::optional<lm_tree::FileId>;
    Answer AnswerOf(std::size_t culture, std::size_t scope) const {
        return answers_[culture][scope];
    }
    Answer ReferenceAnswer(std::size_t scope) const { return referenceAnswers_[scope]; }

    /// The requests that a file answers, ordered.
    std::vector<Request> RequestsOf(lm_tree::FileId file) const;

    /// The requests whose plural rule is one.
    std::vector<Request> RequestsOfRule(std::size_t rule) const;

    static Request MakeRequest(std::size_t culture, std::size_t scope) {
        return {static_cast<std::uint16_t>(culture), static_cast<std::uint16_t>(scope)};
    }

private:
    void ChooseCultures();
    void ChooseScopes();
    void ChooseRules();
    std::size_t AddRule(const lm_tree::CultureName& culture);
    std::size_t AddRuleFile(lm_tree::FileId file);

    std::vector<std::vector<Answer>> answers_;  // by culture and scope
    std::vector<Answer> referenceAnswers_;
};

}  // namespace lm_check
