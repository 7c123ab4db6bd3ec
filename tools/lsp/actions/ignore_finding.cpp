#include <string>
#include <string_view>

#include "edit/append.h"
#include "lsp/actions/actions.h"

namespace lm_lsp {

using lm_check::Finding;
using lm_check::Rule;
using lm_source::Document;
using lm_source::Entry;

namespace {

/// Whether nothing but blanks stands before an entry in its line.
bool BeginsLine(const Document& document, const Entry& entry, std::uint32_t line) {
    return document.Bytes({line, entry.key.begin}).find_first_not_of(" \t") ==
           std::string_view::npos;
}

void Ignore(const Scene& scene, const Scene::Problem& problem, Offers& offers) {
    const Document& document = scene.Document();
    const Finding& finding = problem.finding;
    const std::string name = lm_check::InfoOf(finding.rule).name;
    const std::string lineBreak(lm_edit::LineBreakOf(document));
    const std::string comment = "; localize: ignore " + name + lineBreak;
    if (finding.location.range == lm_source::Range()) {
        const std::uint32_t begin = document.Content().begin;
        offers.Add("Ignore " + name + " in this file", problem.diagnostic,
                   {{{begin, begin}, comment + lineBreak}});
        return;
    }
    for (const Entry& entry : document.Entries()) {
        const std::uint32_t number = document.PlaceOf(entry.key.begin).line;
        const std::uint32_t line = document.Lines().RangeOf(document.Bytes(), number).begin;
        if (entry.key.begin <= finding.location.range.begin &&
            finding.location.range.begin < entry.end && BeginsLine(document, entry, line)) {
            offers.Add("Ignore " + name + " here", problem.diagnostic, {{{line, line}, comment}});
        }
    }
}

}  // namespace

void IgnoreFinding(const Scene& scene, Offers& offers) {
    for (const Scene::Problem& problem : scene.Problems()) {
        const Rule rule = problem.finding.rule;
        // Nobody can ignore what the engine cannot read.
        if (problem.isHere && rule != Rule::Syntax && rule != Rule::UnusedSuppression) {
            Ignore(scene, problem, offers);
        }
    }
}

}  // namespace lm_lsp
