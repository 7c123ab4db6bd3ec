#include "lsp/findings.h"

#include <utility>
#include <vector>

#include "check/check.h"
#include "lsp/places.h"

namespace lm_lsp {

lm_check::TranslationLock LockOf(const Snapshot& snapshot) {
    return lm_check::TranslationLock(snapshot.LockText());
}

lm_check::CheckOptions OptionsFor(const Snapshot& snapshot, lm_tree::FileId file) {
    lm_check::CheckOptions options = snapshot.GetSettings().check;
    for (const lm_tree::CultureName& culture : snapshot.CulturesOf(file)) {
        options.cultures.push_back(culture.name);
    }
    options.scopes = {snapshot.GetTree().Files()[file].scope};
    options.progress = [&snapshot](std::size_t, std::size_t) { snapshot.Pass(); };
    return options;
}

lm_check::Report JudgeFile(const Snapshot& snapshot, lm_tree::FileId file) {
    const lm_tree::TreeFile& found = snapshot.GetTree().Files()[file];
    lm_check::Report report =
        Check(snapshot.GetTree(), OptionsFor(snapshot, file), LockOf(snapshot));
    std::vector<lm_check::Finding> own;
    for (lm_check::Finding& finding : report.findings) {
        if (finding.location.side == found.side && finding.location.path == found.path) {
            own.push_back(std::move(finding));
        }
    }
    report.findings = std::move(own);
    return report;
}

std::filesystem::path PathOf(const Snapshot& snapshot, const lm_check::Location& location) {
    return snapshot.GetTree().FullPath(location.side, location.path).lexically_normal();
}

Json DiagnosticOf(const Workspace& workspace, const Snapshot& snapshot,
                  const lm_check::Finding& finding) {
    const auto rangeOf = [](const lm_check::Location& location) {
        return RangeOf(location.begin, location.end);
    };
    Json diagnostic = {{"range", rangeOf(finding.location)},
                       {"severity", finding.severity == lm_check::Severity::Error ? 1 : 2},
                       {"code", lm_check::InfoOf(finding.rule).name},
                       {"source", "localize"},
                       {"message", finding.message}};
    for (const lm_check::Related& related : finding.related) {
        diagnostic["relatedInformation"].push_back(
            {{"location",
              {{"uri", workspace.UriOf(PathOf(snapshot, related.location))},
               {"range", rangeOf(related.location)}}},
             {"message", related.message}});
    }
    return diagnostic;
}

}  // namespace lm_lsp
