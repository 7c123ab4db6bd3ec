#include "check/Reference.h"

#include <memory>
#include <stdexcept>

#include "check/TextFile.h"

namespace lm_check {

namespace {

/// Null when there is no such file, or it cannot be read, which is said where it is judged.
std::unique_ptr<TextFile> FileOf(const Plan& plan, std::size_t scope) {
    const Plan::Answer answer = plan.ReferenceAnswer(scope);
    try {
        return answer && plan.isJudged[scope] ? std::make_unique<TextFile>(plan.tree, *answer)
                                              : nullptr;
    } catch (const std::exception&) {
        return nullptr;
    }
}

}  // namespace

Reference::Reference(const Plan& plan)
    : scopes_(plan.scopes.size()), isThere_(plan.scopes.size(), false) {
    const std::unique_ptr<TextFile> common = FileOf(plan, Plan::kCommon);
    std::unique_ptr<Expansion> commonExpansion;
    if (common) {
        commonExpansion = std::make_unique<Expansion>(common->document, nullptr, nullptr, names_);
        scopes_[Plan::kCommon] = ReferenceScope(*commonExpansion);
        isThere_[Plan::kCommon] = true;
    }
    for (std::size_t scope = 0; scope < scopes_.size(); ++scope) {
        if (scope == Plan::kCommon) {
            continue;
        }
        if (const auto file = FileOf(plan, scope)) {
            scopes_[scope] =
                ReferenceScope(Expansion(file->document, commonExpansion.get(), nullptr, names_));
            isThere_[scope] = true;
        }
    }
}

ReferenceView Reference::Of(std::size_t scope) const {
    const auto find = [this](std::size_t number) {
        return isThere_[number] ? &scopes_[number] : nullptr;
    };
    return {scope == Plan::kCommon ? nullptr : find(scope), find(Plan::kCommon), &names_};
}

}  // namespace lm_check
