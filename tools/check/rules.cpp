// The table of all rules.
#include <algorithm>

#include "check/Rule.h"

namespace lm_check {

const std::vector<RuleInfo>& AllRules() {
    constexpr Severity kError = Severity::Error;
    constexpr Severity kWarning = Severity::Warning;
    static const std::vector<RuleInfo> rules = {
        {Rule::Syntax, "syntax", kError, true, "A file is not written as the format demands"},
        {Rule::Encoding, "encoding", kError, true, "A file is not UTF-8"},
        {Rule::DuplicateKey, "duplicate-key", kError, true, "A file has a key twice"},
        {Rule::UnknownReference, "unknown-reference", kError, true,
         "A reference names a key that is not there"},
        {Rule::ReferenceCycle, "reference-cycle", kError, true,
         "References lead back to where they began"},
        {Rule::TooLarge, "too-large", kError, true,
         "A text nests or expands beyond a limit of the program"},
        {Rule::ReferenceInForm, "reference-in-form", kError, true,
         "A reference stands inside a plural form"},
        {Rule::FormCount, "form-count", kError, true,
         "A plural form has not as many forms as the plural rule"},
        {Rule::MissingKey, "missing-key", kError, true, "A key of the reference is missing"},
        {Rule::MissingFile, "missing-file", kError, true,
         "No file answers for a scope of the reference, or for the common texts"},
        {Rule::MissingResource, "missing-resource", kError, true,
         "A culture does not find a file that the reference has"},
        {Rule::RuleSyntax, "rule-syntax", kError, true,
         "A plural rule file is not written as the format demands"},
        {Rule::RuleGap, "rule-gap", kError, true, "A plural rule file leaves a number out"},
        {Rule::UnknownParameter, "unknown-parameter", kError, true,
         "A text asks for a parameter that the reference text does not have"},
        {Rule::FormattedForm, "formatted-form", kError, true,
         "A value that is written for people chooses a form"},
        {Rule::RuleUnproven, "rule-unproven", kWarning, true,
         "Whether a plural rule file leaves a number out takes too long to prove"},
        {Rule::ParameterDropped, "parameter-dropped", kWarning, true,
         "A text does not use a parameter of the reference text"},
        {Rule::ParameterCase, "parameter-case", kWarning, true,
         "A parameter differs from another one only in letter case"},
        {Rule::ExtraKey, "extra-key", kWarning, true, "The reference has no such key"},
        {Rule::ExtraFile, "extra-file", kWarning, true, "The reference has no such scope"},
        {Rule::AnsweredElsewhere, "answered-elsewhere", kWarning, true,
         "A less specific directory answers for a culture that has one of its own"},
        {Rule::NeutralPlural, "neutral-plural", kWarning, true,
         "A plural form stands in the texts of all languages"},
        {Rule::Unreachable, "unreachable", kWarning, true,
         "No request leads to a directory or file"},
        {Rule::DeadForm, "dead-form", kWarning, true, "No number selects a form"},
        {Rule::HiddenNumber, "hidden-number", kWarning, true,
         "A form for several numbers does not show which"},
        {Rule::Untranslated, "untranslated", kWarning, true,
         "An entry is marked as not translated yet"},
        {Rule::Escape, "escape", kWarning, true, "A backslash does not do what was meant"},
        {Rule::OuterSpace, "outer-space", kWarning, true,
         "White space at the ends of a text differs from the reference"},
        {Rule::ControlCharacter, "control-character", kWarning, true,
         "A text holds a control character, or an unpaired mark of direction"},
        {Rule::Stale, "stale", kWarning, true,
         "The reference text has changed since the translation was accepted"},
        {Rule::UnusedSuppression, "unused-suppression", kWarning, true,
         "A suppression, or an entry of the baseline, matches nothing"},
        {Rule::Unchanged, "unchanged", kWarning, false, "A text is the same as the reference text"},
    };
    return rules;
}

const RuleInfo& InfoOf(Rule rule) {
    return AllRules()[static_cast<std::size_t>(rule)];
}

std::optional<Rule> RuleOfName(std::string_view name) {
    const auto& rules = AllRules();
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [name](const RuleInfo& info) { return info.name == name; });
    return found != rules.end() ? std::optional(found->rule) : std::nullopt;
}

}  // namespace lm_check
