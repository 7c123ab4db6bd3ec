#include "check/judge_unit.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <tuple>

#include "TreeLayout.h"
#include "check/FormWalk.h"
#include "check/families.h"
#include "tree/path_text.h"

namespace lm_check {

namespace {

/// What the answers of a file depend on.
using Circumstances = std::tuple<std::size_t, Plan::Answer, std::size_t>;  // scope, common, rule

std::map<Circumstances, std::vector<Request>> Group(const Plan& plan, const Unit& unit) {
    std::map<Circumstances, std::vector<Request>> groups;
    for (const Request request : unit.requests) {
        const Plan::Answer common = request.scope == Plan::kCommon
                                        ? std::nullopt
                                        : plan.AnswerOf(request.culture, Plan::kCommon);
        groups[{request.scope, common, plan.ruleOf[request.culture]}].push_back(request);
    }
    return groups;
}

bool AnyHasForms(const TextFile& file) {
    const auto& entries = file.document.Entries();
    return std::any_of(entries.begin(), entries.end(), [&](const lm_source::Entry& entry) {
        return !entry.isFaulty && HasForms(file.document, entry);
    });
}

/// Judges a file whose texts can be read.
class Judgement {
public:
    Judgement(const Plan& plan, const Reference& reference, const TranslationLock& lock,
              CommonFiles& commonFiles, const TextFile& file, UnitResult& result)
        : plan_(plan),
          reference_(reference),
          lock_(lock),
          commonFiles_(commonFiles),
          file_(file),
          result_(result) {}

    void Run(const Unit& unit) {
        const bool isNeutral =
            file_.file.directory == lm_tree::Utf8Of(LocalizationManager::File::kNeutralDirectory);
        CheckSyntax(file_, unit.requests, result_.findings);
        if (file_.document.GetEncoding().isUtf16) {
            return;
        }
        CheckStrings(file_, unit.requests, result_.findings);
        if (isNeutral) {
            CheckNeutralForms(plan_, file_, unit.requests, result_.findings);
        }
        // Of a file that is judged in part only, more suppressions may be of use than are seen.
        const bool isJudged = plan_.options.IsWhole() && !file_.HasGaps() &&
                              plan_.tree.HasAlternative() == (file_.file.side == Side::Alternative);
        result_.suppressions.Read(file_, isJudged);
        const bool hasForms = AnyHasForms(file_);
        for (const auto& [circumstances, requests] : Group(plan_, unit)) {
            JudgeFor(circumstances, requests);
            if (hasForms) {
                result_.plurals.insert(result_.plurals.end(), requests.begin(), requests.end());
            }
        }
    }

private:
    void JudgeFor(const Circumstances& circumstances, const std::vector<Request>& requests) {
        const auto& [scope, commonId, ruleNumber] = circumstances;
        const RuleSource& rule = plan_.rules[ruleNumber];
        const ReferenceView reference = reference_.Of(scope);
        NameSets names(reference.names);
        const auto common = commonId ? commonFiles_.Get(*commonId) : nullptr;
        std::unique_ptr<Expansion> commonExpansion;
        if (common) {
            commonExpansion =
                std::make_unique<Expansion>(common->document, nullptr, rule.Rule(), names);
        }
        const Expansion expansion(file_.document, commonExpansion.get(), rule.Rule(), names);
        const Subject subject{plan_,
                              file_,
                              common.get(),
                              expansion,
                              commonExpansion.get(),
                              rule,
                              requests,
                              reference,
                              plan_.ReferenceAnswer(scope) == file_.id,
                              names,
                              lock_};
        CheckReferences(subject, result_.findings);
        CheckForms(subject, result_.findings);
        CheckParameters(subject, result_.findings);
        CheckKeys(subject, result_.findings);
    }

    const Plan& plan_;
    const Reference& reference_;
    const TranslationLock& lock_;
    CommonFiles& commonFiles_;
    const TextFile& file_;
    UnitResult& result_;
};

}  // namespace

UnitResult JudgeUnit(const Plan& plan, const Reference& reference, const TranslationLock& lock,
                     CommonFiles& commonFiles, const Unit& unit) {
    UnitResult result{Collector(plan.options), {}, {}};
    const lm_tree::TreeFile& file = plan.tree.Files()[unit.file];
    std::shared_ptr<const TextFile> text;
    try {
        text = file.scope == lm_tree::CommonScope() ? commonFiles.Get(unit.file) : nullptr;
        if (!text) {
            text = std::make_shared<const TextFile>(plan.tree, unit.file);
        }
    } catch (const std::length_error& tooLong) {
        result.findings.AddWhole(Rule::TooLarge, file.side, file.path, unit.requests,
                                 tooLong.what());
        return result;
    } catch (const std::runtime_error& unreadable) {
        result.findings.AddWhole(Rule::MissingFile, file.side, file.path, unit.requests,
                                 std::string("the file answers, but ") + unreadable.what());
        return result;
    }
    Judgement(plan, reference, lock, commonFiles, *text, result).Run(unit);
    return result;
}

}  // namespace lm_check
