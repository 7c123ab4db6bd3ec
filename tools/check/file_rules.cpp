#include <algorithm>
#include <map>
#include <set>

#include "TreeLayout.h"
#include "check/families.h"
#include "tree/ascii_case.h"
#include "tree/path_text.h"

namespace lm_check {

namespace {

namespace layout = LocalizationManager::File;

using lm_tree::CultureName;
using lm_tree::FileKind;
using lm_tree::TextsPath;
using lm_tree::TreeFile;
using lm_tree::Utf8Of;

/// The culture's directories that hold texts, or would hold them.
void CheckAnswer(const Plan& plan, std::size_t culture, std::size_t scope, Collector& out) {
    const CultureName& name = plan.cultures[culture];
    const std::vector<Request> request = {Plan::MakeRequest(culture, scope)};
    const Plan::Answer answer = plan.AnswerOf(culture, scope);
    if (!answer) {
        const std::string path = TextsPath(name.name, plan.scopes[scope]);
        out.AddWhole(Rule::MissingFile, Side::Root, path, request,
                     "no file answers " + name.name + " for " + plan.scopes[scope] +
                         ": add this one, or one in a less specific directory or in " +
                         Utf8Of(layout::kNeutralDirectory));
        return;
    }
    const TreeFile& file = plan.tree.Files()[*answer];
    if (file.directory != name.name && plan.tree.HasDirectory(name.name)) {
        out.AddWhole(Rule::AnsweredElsewhere, file.side, file.path, request,
                     "this file answers " + plan.scopes[scope] +
                         " for cultures that have a directory of their own: add " +
                         TextsPath("CULTURE", plan.scopes[scope]) +
                         " there if they need other "
                         "texts");
    }
}

void CheckAnswers(const Plan& plan, Collector& out) {
    for (std::size_t culture = 0; culture < plan.cultures.size(); ++culture) {
        for (std::size_t scope = 0; scope < plan.scopes.size(); ++scope) {
            if (plan.isJudged[scope]) {
                CheckAnswer(plan, culture, scope, out);
            }
        }
    }
}

/// How many letters have to change, enter or leave; 3 for more than two.
std::size_t Distance(const std::string& left, const std::string& right) {
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = i;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

/// The scope that a file is probably meant for; empty when there is none.
std::string Similar(const Plan& plan, const std::string& scope) {
    constexpr std::size_t kClose = 2;
    for (const std::string& known : plan.scopes) {
        if (Distance(scope, known) <= std::min(kClose, known.size() / 2)) {
            return known;
        }
    }
    return {};
}

/// Files whose scope the reference does not have.
void CheckExtraFiles(const Plan& plan, Collector& out) {
    for (const TreeFile& file : plan.tree.Files()) {
        if (file.kind != FileKind::Texts ||
            std::count(plan.scopes.begin(), plan.scopes.end(), file.scope) != 0) {
            continue;
        }
        const auto sameIgnoringCase = std::find_if(
            plan.scopes.begin(), plan.scopes.end(),
            [&](const std::string& scope) { return lm_tree::SameIgnoringCase(scope, file.scope); });
        if (sameIgnoringCase != plan.scopes.end()) {
            out.AddWhole(Rule::Unreachable, file.side, file.path, {},
                         "the reference writes this scope '" + *sameIgnoringCase +
                             "', and letter case counts: rename the file");
            continue;
        }
        const std::string similar = Similar(plan, file.scope);
        out.AddWhole(Rule::ExtraFile, file.side, file.path, {},
                     "the reference has no scope '" + file.scope + "'" +
                         (similar.empty() ? ": remove the file, or correct its name"
                                          : ": is it '" + similar + "'? Rename the file"));
    }
}

void CheckResources(const Plan& plan, Collector& out) {
    if (!out.Wants(Rule::MissingResource)) {
        return;
    }
    for (std::size_t scope = 0; scope < plan.scopes.size(); ++scope) {
        if (scope == Plan::kCommon || !plan.isJudged[scope]) {
            continue;
        }
        for (const auto& [side, path] : plan.tree.ResourcesOf(plan.reference, plan.scopes[scope])) {
            const std::string below = path.substr(path.find('/') + 1);
            std::vector<Request> requests;
            for (std::size_t culture = 0; culture < plan.cultures.size(); ++culture) {
                if (!plan.tree.FindsResource(plan.cultures[culture], below)) {
                    requests.push_back(Plan::MakeRequest(culture, scope));
                }
            }
            if (!requests.empty()) {
                out.AddWhole(Rule::MissingResource, side, path, requests,
                             "cultures do not find this file of the reference: add " + below +
                                 " to their directories, or to " +
                                 Utf8Of(layout::kNeutralDirectory));
            }
        }
    }
}

}  // namespace

void CheckFiles(const Plan& plan, Collector& out) {
    CheckAnswers(plan, out);
    CheckResources(plan, out);
    if (!plan.options.IsWhole()) {
        return;
    }
    CheckExtraFiles(plan, out);
    for (const lm_tree::Tree::Stray& stray : plan.tree.Strays()) {
        out.AddWhole(Rule::Unreachable, stray.side, stray.path, {}, stray.why);
    }
}

}  // namespace lm_check
