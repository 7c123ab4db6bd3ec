#include <algorithm>
#include <set>

#include "CultureNames.h"
#include "check/FormWalk.h"
#include "check/families.h"
#include "localization_manager/host/DerivedParam.h"

namespace lm_check {

using lm_plural::PluralRule;
using lm_plural::Use;
using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using localization_manager::host::SuppliedParam;

namespace {

std::string Forms(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " form" : " forms");
}

std::string NameOf(const Subject& subject) {
    return subject.rule.file ? subject.plan.tree.Files()[*subject.rule.file].path
                             : std::string("the language's rule");
}

/// Whether a number is put into a form by a parameter, plain or written for people.
bool Shows(const Document& document, lm_source::Value form, std::string_view param) {
    for (const Operand& operand : form) {
        if (operand.kind == OperandKind::Param && SuppliedParam(document.Name(operand)) == param) {
            return true;
        }
        for (const lm_source::Value inner : FormsOf(operand)) {
            if (Shows(document, inner, param)) {
                return true;
            }
        }
    }
    return false;
}

/// Judges the plural forms of one entry.
class Judge {
public:
    Judge(const Subject& subject, const Entry& entry, Collector& out)
        : subject_(subject),
          document_(subject.file.document),
          entry_(entry),
          rule_(*subject.rule.Rule()),
          walk_(document_, &rule_),
          out_(out) {}

    void Run() {
        auto visit = [this](const Operand& operand, bool isLive, std::size_t depth) {
            if (operand.kind == OperandKind::PluralForm) {
                CheckInvocation(operand, isLive, depth);
            }
        };
        walk_.Operands(document_.ValueOf(entry_), visit);
    }

private:
    void CheckInvocation(const Operand& operand, bool isLive, std::size_t depth) {
        const auto forms = FormsOf(operand);
        if (rule_.FormCount() == 0) {
            return;  // a rule without conditions accepts no number, which is said of the rule
        }
        if (forms.size() != rule_.FormCount()) {
            AddCount(operand, forms.size(), isLive);
            return;
        }
        if (depth != 0 && isLive) {
            CheckLife(operand, forms);
        }
        CheckNumbers(operand, forms);
    }

    void AddCount(const Operand& operand, std::size_t found, bool isLive) {
        const std::string expected = Forms(rule_.FormCount());
        std::string message = NameOf(subject_) + " has " + expected + ", here " +
                              (found == 1 ? "is " : "are ") + std::to_string(found) +
                              ": write exactly " + expected;
        const Range brace{operand.range.begin, operand.range.begin + 1};
        if (isLive) {
            out_.Add(Rule::FormCount, subject_.Source(), brace, document_.Key(entry_),
                     subject_.requests, std::move(message));
        } else {
            out_.AddWarning(Rule::FormCount, subject_.Source(), brace, document_.Key(entry_),
                            subject_.requests, std::move(message));
        }
    }

    /// Inside a form of the same parameter the number is known already.
    void CheckLife(const Operand& operand, const std::vector<lm_source::Value>& forms) {
        const std::string_view param = document_.Name(operand);
        for (std::size_t form = 0; form < forms.size(); ++form) {
            if (!walk_.IsSelectable(param, form) && rule_.UseOf(form) != Use::None) {
                out_.Add(Rule::DeadForm, subject_.Source(), RangeOf(forms[form]),
                         document_.Key(entry_), subject_.requests,
                         "no number selects this form: it stands in a form that $" +
                             std::string(param) + " has chosen already");
            }
        }
    }

    void CheckNumbers(const Operand& operand, const std::vector<lm_source::Value>& forms) {
        const std::string_view param = document_.Name(operand);
        std::vector<bool> shows;
        shows.reserve(forms.size());
        for (const lm_source::Value form : forms) {
            shows.push_back(Shows(document_, form, param));
        }
        if (std::count(shows.begin(), shows.end(), true) == 0) {
            return;
        }
        for (std::size_t form = 0; form < forms.size(); ++form) {
            if (!shows[form] && rule_.UseOf(form) == Use::Several &&
                walk_.IsSelectable(param, form)) {
                out_.Add(Rule::HiddenNumber, subject_.Source(), RangeOf(forms[form]),
                         document_.Key(entry_), subject_.requests,
                         "several numbers select this form, " + Examples(form) +
                             ", but it does not show which: put $" + std::string(param) +
                             " into it");
            }
        }
    }

    /// The first numbers that select a form.
    std::string Examples(std::size_t form) const {
        constexpr std::uint64_t kLast = 1000;
        constexpr int kEnough = 4;
        std::string examples;
        int count = 0;
        for (std::uint64_t number = 0; number <= kLast && count < kEnough; ++number) {
            if (rule_.FormOf(number) == form) {
                examples += (count++ == 0 ? "" : ", ") + std::to_string(number);
            }
        }
        return count == 0 ? "large ones" : "such as " + examples;
    }

    static Range RangeOf(lm_source::Value form) {
        Range range = form.begin()->range;
        for (const Operand& operand : form) {
            range.end = operand.range.end;
        }
        return range;
    }

    const Subject& subject_;
    const Document& document_;
    const Entry& entry_;
    const PluralRule& rule_;
    FormWalk walk_;
    Collector& out_;
};

/// How many forms the languages have that neutral texts may be asked for in.
std::set<std::size_t> FormCounts(const Plan& plan) {
    std::set<std::size_t> counts;
    for (std::uint32_t value = 0; value < localization_manager::kLanguageCount; ++value) {
        const auto language = static_cast<localization_manager::Language>(value);
        if (!plan.tree.RuleOf(lm_tree::CultureOf(language, ""))) {
            counts.insert(PluralRule::BuiltIn({language, ""}).FormCount());
        }
    }
    for (const RuleSource& source : plan.rules) {
        if (source.rule) {
            counts.insert(source.rule->FormCount());
        }
    }
    return counts;
}

}  // namespace

void CheckForms(const Subject& subject, Collector& out) {
    if (subject.rule.Rule() == nullptr) {
        return;
    }
    for (const Entry& entry : subject.file.document.Entries()) {
        if (!entry.isFaulty && HasForms(subject.file.document, entry)) {
            Judge(subject, entry, out).Run();
        }
    }
}

void CheckNeutralForms(const Plan& plan, const TextFile& file, const std::vector<Request>& requests,
                       Collector& out) {
    const Document& document = file.document;
    std::optional<std::set<std::size_t>> counts;
    for (const Entry& entry : document.Entries()) {
        if (entry.isFaulty || !HasForms(document, entry)) {
            continue;
        }
        if (!counts) {
            counts = FormCounts(plan);
        }
        for (const Operand& operand : document.OperandsOf(entry)) {
            if (operand.kind != OperandKind::PluralForm) {
                continue;
            }
            const std::size_t found = FormsOf(operand).size();
            if (*counts != std::set<std::size_t>{found}) {
                out.Add(
                    Rule::NeutralPlural, Subject::ViewOf(file),
                    {operand.range.begin, operand.range.begin + 1}, document.Key(entry), requests,
                    "these texts are for every language, and not every one has " + Forms(found) +
                        ": write a text without a plural form, such as "
                        "'Selected files: ' + $count");
            }
        }
    }
}

}  // namespace lm_check
