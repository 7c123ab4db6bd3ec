// What a request for code actions is about.
#pragma once

#include <cstddef>
#include <vector>

#include "check/Report.h"
#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// Mistakes of a rule that changes are offered for one by one: more than anybody chooses from, and each may take
/// as long as reading the file.
inline constexpr std::size_t kMostToMend = 20;

/// A range of a file of a tree, and what is wrong with the file as typed.
class Scene {
public:
    /// @param target  of a tree; must outlive this.
    /// @param told    diagnostics that the editor knows of the range; may be anything.
    Scene(const Target& target, lm_source::Range range, const Json& told);

    const Target& GetTarget() const noexcept { return target_; }
    const lm_source::Document& Document() const noexcept { return target_.Document(); }
    const Snapshot& GetSnapshot() const noexcept { return *target_.InTree(); }

    /// Whether the range begins where the file does: there stands what the file as a whole lacks.
    bool IsAtStart() const { return range_.begin <= Document().Content().begin; }

    /// What one judges of the file alone.
    const std::vector<lm_check::Finding>& Findings() const noexcept { return findings_; }

    /// Whether a finding touches the range.
    bool IsHere(const lm_check::Finding& finding) const;

    /// The first of a rule that do.
    std::vector<const lm_check::Finding*> Here(lm_check::Rule rule) const;

    /// A finding as the editor has it.
    Json DiagnosticOf(const lm_check::Finding& finding) const;

    /// What is known of the tree as a whole only: the first diagnostics of a rule that the editor was told of.
    std::vector<Json> Told(lm_check::Rule rule) const;

private:
    const Target& target_;
    lm_source::Range range_;
    const Json& told_;
    std::vector<lm_check::Finding> findings_;
};

}  // namespace lm_lsp
