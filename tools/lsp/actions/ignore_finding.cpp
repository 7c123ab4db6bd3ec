#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "edit/append.h"
#include "lsp/Spot.h"
#include "lsp/actions/actions.h"
#include "lsp/findings.h"

namespace lm_lsp {

using lm_check::Finding;
using lm_check::Rule;
using lm_source::Document;

namespace {

/// Where a comment about a finding goes: the start of the file, or of the line that its entry begins.
/// Empty where none can be written.
std::optional<std::uint32_t> PlaceFor(const Document& document, const Finding& finding) {
    if (finding.location.range == lm_source::Range()) {
        return document.Content().begin;
    }
    const lm_source::Entry* const entry = SpotAt(document, finding.location.range.begin).entry;
    if (entry == nullptr) {
        return std::nullopt;
    }
    const std::uint32_t number = document.PlaceOf(entry->key.begin).line;
    const std::uint32_t line = document.Lines().RangeOf(document.Bytes(), number).begin;
    const bool beginsLine =
        document.Bytes({line, entry->key.begin}).find_first_not_of(" \t") == std::string_view::npos;
    return beginsLine ? std::optional(line) : std::nullopt;
}

}  // namespace

void IgnoreFinding(const Scene& scene, Offers& offers) {
    const Document& document = scene.Document();
    const std::string lineBreak(lm_edit::LineBreakOf(document));
    // One comment ignores all findings of a rule at an entry, or of the file as a whole.
    std::map<std::tuple<std::uint32_t, bool, Rule>, std::vector<Json>> groups;
    for (const Finding& finding : scene.Findings()) {
        // Nobody can ignore what the engine cannot read.
        if (!scene.IsHere(finding) || finding.rule == Rule::Syntax ||
            finding.rule == Rule::UnusedSuppression) {
            continue;
        }
        const auto place = PlaceFor(document, finding);
        if (!place) {
            continue;
        }
        const bool isOfFile = finding.location.range == lm_source::Range();
        std::vector<Json>& diagnostics = groups[{*place, !isOfFile, finding.rule}];
        if (diagnostics.size() < kMostOfFile) {
            diagnostics.push_back(scene.DiagnosticOf(finding));
        }
        if (groups.size() > kMostToMend) {  // the first are kept
            groups.erase(std::prev(groups.end()));
        }
    }
    for (const auto& [where, diagnostics] : groups) {
        const auto& [place, isAtEntry, rule] = where;
        const std::string name = lm_check::InfoOf(rule).name;
        std::string comment = "; localize: ignore " + name;
        comment += lineBreak;
        comment += isAtEntry ? "" : lineBreak;
        offers.Add("Ignore " + name + (isAtEntry ? " here" : " in this file"), diagnostics,
                   {{{place, place}, std::move(comment)}});
    }
}

}  // namespace lm_lsp
