#include <algorithm>
#include <iterator>
#include <utility>

#include "check/families.h"
#include "source/Encoding.h"

namespace lm_check {

namespace {

void AddMistake(const RuleSource& source, const SourceView& view,
                const std::vector<Request>& requests, Collector& out) {
    const lm_source::RuleMistake& mistake = *source.mistake;
    const std::uint32_t begin = mistake.offset;
    const std::uint32_t end =
        std::max(begin, view.lines.RangeOf(view.bytes, view.lines.LineOf(begin)).end);
    const std::size_t expecting = mistake.text.rfind("expecting ");
    const bool isReport = expecting != std::string::npos;
    Finding* const finding =
        out.Add(Rule::RuleSyntax, view, {begin, end}, {}, requests,
                isReport ? "a condition is not written as it has to be, such as 'n % 10 == 1 && n "
                           "% 100 != 11;' (" +
                               mistake.text.substr(expecting) + ")"
                         : mistake.text);
    if (finding != nullptr && isReport) {
        finding->engineText = mistake.text;
    }
}

/// Nothing but the end of a condition is written with ";".
Range ConditionRange(const RuleSource& source, std::size_t condition) {
    std::size_t begin = source.content.begin;
    for (std::size_t i = 0; i < condition; ++i) {
        begin = source.bytes.find(';', begin) + 1;
    }
    begin = source.bytes.find_first_not_of(" \t\r\n\v\f", begin);
    return {static_cast<std::uint32_t>(begin),
            static_cast<std::uint32_t>(source.bytes.find(';', begin))};
}

/// @param plurals  the requests that meet the gap.
void AddGap(const RuleSource& source, const SourceView& view, const std::vector<Request>& plurals,
            const std::vector<Request>& requests, Collector& out) {
    const std::size_t conditions = source.rule->FormCount();
    const Range range = conditions == 0 ? Range{source.content.begin, source.content.begin}
                                        : ConditionRange(source, conditions - 1);
    std::string message = "no condition accepts " + std::to_string(*source.rule->Gap()) +
                          ": let the last one accept all that the others leave, as 'n>=0 || n<0;' "
                          "does";
    if (!plurals.empty()) {
        out.Add(Rule::RuleGap, view, range, {}, plurals, std::move(message));
    } else {
        out.AddWarning(Rule::RuleGap, view, range, {}, requests,
                       message + " (no text has a plural form yet)");
    }
}

void AddDeadForms(const RuleSource& source, const SourceView& view,
                  const std::vector<Request>& requests, Collector& out) {
    for (std::size_t form = 0; form < source.rule->FormCount(); ++form) {
        if (source.rule->UseOf(form) == lm_plural::Use::None) {
            out.Add(Rule::DeadForm, view, ConditionRange(source, form), {}, requests,
                    "no number of 0 or more reaches this condition and meets it: correct it, or "
                    "remove it with its form in all texts");
        }
    }
}

void CheckRuleFile(const Plan& plan, const RuleSource& source, const std::vector<Request>& plurals,
                   const std::vector<Request>& requests, Collector& out) {
    const SourceView view{plan.tree.Files()[*source.file], source.bytes, source.lines};
    if (lm_source::EncodingOf(source.bytes).isUtf16) {
        out.AddWhole(Rule::Encoding, view.file.side, view.file.path, requests,
                     "the file is UTF-16, which the program takes for rubbish: save it as UTF-8");
        return;
    }
    if (source.mistake) {
        AddMistake(source, view, requests, out);
        return;
    }
    if (source.rule->Gap()) {
        AddGap(source, view, plurals, requests, out);
    } else if (!source.rule->IsProven()) {
        const std::uint32_t begin = source.content.begin;
        out.Add(Rule::RuleUnproven, view, {begin, begin}, {}, requests,
                "that some condition accepts every number takes too long to prove: compare "
                "remainders by smaller numbers, or let the last condition be 'n>=0 || n<0;'");
    }
    AddDeadForms(source, view, requests, out);
}

}  // namespace

void CheckRuleFiles(const Plan& plan, std::vector<Request> plurals, Collector& out) {
    std::sort(plurals.begin(), plurals.end());
    for (std::size_t rule = 0; rule < plan.rules.size(); ++rule) {
        if (!plan.rules[rule].file) {
            continue;
        }
        std::vector<Request> met;
        std::copy_if(plurals.begin(), plurals.end(), std::back_inserter(met),
                     [&](Request request) { return plan.ruleOf[request.culture] == rule; });
        CheckRuleFile(plan, plan.rules[rule], met, plan.RequestsOfRule(rule), out);
    }
}

}  // namespace lm_check
