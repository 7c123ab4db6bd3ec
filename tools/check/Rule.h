// The rules that a tree is judged by.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lm_check {

enum class Rule : std::uint8_t {
    Syntax,
    Encoding,
    DuplicateKey,
    UnknownReference,
    ReferenceCycle,
    TooLarge,
    ReferenceInForm,
    FormCount,
    MissingKey,
    MissingFile,
    MissingResource,
    RuleSyntax,
    RuleGap,
    UnknownParameter,
    FormattedForm,
    RuleUnproven,
    ParameterDropped,
    ParameterCase,
    ExtraKey,
    ExtraFile,
    AnsweredElsewhere,
    NeutralPlural,
    Unreachable,
    DeadForm,
    HiddenNumber,
    Untranslated,
    Escape,
    OuterSpace,
    ControlCharacter,
    Stale,
    UnusedSuppression,
    Unchanged,
};

/// An error is what makes a request fail or shows rubbish.
enum class Severity : std::uint8_t { Error, Warning };

struct RuleInfo {
    Rule rule;
    const char* name;
    Severity severity;  // at most; a finding that harms no request is a warning
    bool isOn;          // unless it is asked for, or declined
    const char* description;
};

/// All of them, in the order of `Rule`.
const std::vector<RuleInfo>& AllRules();

const RuleInfo& InfoOf(Rule rule);

/// Empty for a name that no rule has.
std::optional<Rule> RuleOfName(std::string_view name);

}  // namespace lm_check
