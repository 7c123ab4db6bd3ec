// What a request for code actions is about.
#pragma once

#include <vector>

#include "check/Report.h"
#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// A range of a file of a tree, and what is wrong with the file as typed.
class Scene {
public:
    struct Problem {
        lm_check::Finding finding;
        Json diagnostic;  // as the editor has it
        bool isHere;      // whether it touches the range
    };

    /// @param target  of a tree; must outlive this.
    /// @param told    diagnostics that the editor knows of the range; may be anything.
    Scene(const Target& target, lm_source::Range range, const Json& told);

    const Target& GetTarget() const noexcept { return target_; }
    const lm_source::Document& Document() const noexcept { return target_.Document(); }
    const Snapshot& GetSnapshot() const noexcept { return *target_.InTree(); }

    /// Whether the range begins where the file does: there stands what the file as a whole lacks.
    bool IsAtStart() const { return range_.begin <= Document().Content().begin; }

    /// What one judges of the file alone.
    const std::vector<Problem>& Problems() const noexcept { return problems_; }

    /// Those of a rule that touch the range.
    std::vector<const Problem*> Here(lm_check::Rule rule) const;

    /// What is known of the tree as a whole only: diagnostics of a rule that the editor was told of.
    std::vector<Json> Told(lm_check::Rule rule) const;

private:
    const Target& target_;
    lm_source::Range range_;
    const Json& told_;
    std::vector<Problem> problems_;
};

}  // namespace lm_lsp
