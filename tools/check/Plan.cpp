#include "check/Plan.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "FromUtf8.h"
#include "plural/parse_rule.h"
#include "source/Encoding.h"
#include "tree/choose_cultures.h"

namespace lm_check {

namespace {

/// A tree that names no culture answers all languages alike; one stands for all.
constexpr const char* kAnyCulture = "en";

}  // namespace

Plan::Plan(const lm_tree::Tree& treeToJudge, const CheckOptions& checkOptions)
    : tree(treeToJudge),
      options(checkOptions),
      reference(ChooseReference(tree, options.reference)) {
    ChooseCultures();
    ChooseScopes();
    ChooseRules();
    for (const lm_tree::CultureName& culture : cultures) {
        std::vector<Answer>& answers = answers_.emplace_back();
        for (const std::string& scope : scopes) {
            answers.push_back(tree.Answer(culture, scope));
        }
    }
    for (const std::string& scope : scopes) {
        referenceAnswers_.push_back(tree.Answer(reference, scope));
    }
}

void Plan::ChooseCultures() {
    cultures = tree.Cultures();
    if (!options.cultures.empty()) {
        cultures.clear();
        for (const std::string& name : options.cultures) {
            cultures.push_back(lm_tree::RequestedCulture(name));
        }
    }
    if (cultures.empty()) {
        cultures.push_back(lm_tree::NamedCulture(kAnyCulture));
    }
    const auto byName = [](const auto& left, const auto& right) { return left.name < right.name; };
    std::sort(cultures.begin(), cultures.end(), byName);
    cultures.erase(
        std::unique(cultures.begin(), cultures.end(),
                    [](const auto& left, const auto& right) { return left.name == right.name; }),
        cultures.end());
}

void Plan::ChooseScopes() {
    scopes = tree.ScopesOf(reference);
    scopes.insert(scopes.begin(), lm_tree::CommonScope());
    isJudged.assign(scopes.size(), options.scopes.empty());
    for (const std::string& name : options.scopes) {
        const auto found = std::find(scopes.begin(), scopes.end(), name);
        if (found == scopes.end()) {
            throw std::invalid_argument("the reference '" + reference.name + "' has no scope '" +
                                        name + "'");
        }
        isJudged[static_cast<std::size_t>(found - scopes.begin())] = true;
    }
    // Every scope needs the common texts.
    isJudged[kCommon] = true;
}

void Plan::ChooseRules() {
    for (const lm_tree::CultureName& culture : cultures) {
        ruleOf.push_back(AddRule(culture));
    }
}

std::size_t Plan::AddRule(const lm_tree::CultureName& culture) {
    if (const auto file = tree.RuleOf(culture)) {
        return AddRuleFile(*file);
    }
    RuleSource source;
    source.rule = lm_plural::PluralRule::BuiltIn(
        LocalizationManager::StringLocalizing::Model::PluralFormRuleId(*culture.culture));
    const auto same = std::find_if(rules.begin(), rules.end(), [&](const RuleSource& known) {
        return !known.file && known.rule->IsSameAs(*source.rule);
    });
    if (same == rules.end()) {
        rules.push_back(std::move(source));
        return rules.size() - 1;
    }
    return static_cast<std::size_t>(same - rules.begin());
}

std::size_t Plan::AddRuleFile(lm_tree::FileId file) {
    const auto known = std::find_if(rules.begin(), rules.end(), [file](const RuleSource& source) {
        return source.file == file;
    });
    if (known != rules.end()) {
        return static_cast<std::size_t>(known - rules.begin());
    }
    RuleSource source;
    source.file = file;
    try {
        source.bytes = tree.Read(file);
        source.content = lm_source::EncodingOf(source.bytes).content;
        source.lines = lm_source::LineTable(source.bytes, source.content);
        source.mistake = lm_source::FindRuleMistake(source.bytes, tree.Files()[file].path);
    } catch (const std::runtime_error& unreadable) {
        source.mistake = {0, unreadable.what()};
    }
    if (!source.mistake) {
        source.rule.emplace(lm_plural::ParseRule(LocalizationManager::Text::FromUtf8(
            std::string_view(source.bytes).substr(source.content.begin, source.content.size()))));
    }
    rules.push_back(std::move(source));
    return rules.size() - 1;
}

std::vector<Request> Plan::RequestsOf(lm_tree::FileId file) const {
    std::vector<Request> requests;
    for (std::size_t culture = 0; culture < cultures.size(); ++culture) {
        for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
            if (isJudged[scope] && answers_[culture][scope] == file) {
                requests.push_back(MakeRequest(culture, scope));
            }
        }
    }
    return requests;
}

std::vector<Request> Plan::RequestsOfRule(std::size_t rule) const {
    std::vector<Request> requests;
    for (std::size_t culture = 0; culture < cultures.size(); ++culture) {
        if (ruleOf[culture] == rule) {
            requests.push_back(MakeRequest(culture, kCommon));
        }
    }
    return requests;
}

}  // namespace lm_check
