#include "lsp/Diagnostics.h"

#include <stdexcept>
#include <utility>

#include "check/check.h"
#include "lsp/findings.h"
#include "lsp/places.h"

namespace lm_lsp {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds kPause{200};  // in the typing, before a tree is judged
constexpr milliseconds kCheap{40};   // a tree that is judged faster is judged at once

/// Thrown through a check that somebody waits behind.
struct Interrupted {};

}  // namespace

Diagnostics::Diagnostics(const Workspace& workspace, Surroundings surroundings)
    : workspace_(workspace), surroundings_(std::move(surroundings)) {}

void Diagnostics::Touch(const fs::path& path) {
    if (const auto tree = workspace_.TreeOf(path)) {
        touched_.insert(path);
        untold_.insert(path);
        stale_.insert(*tree);
    }
}

void Diagnostics::TouchTrees() {
    stale_.insert(workspace_.Trees().begin(), workspace_.Trees().end());
}

std::optional<milliseconds> Diagnostics::Delay() const {
    if (!touched_.empty()) {
        return milliseconds(0);
    }
    return stale_.empty() ? std::nullopt : std::optional(kPause);
}

void Diagnostics::Work() {
    if (!touched_.empty()) {
        const fs::path path = *touched_.begin();
        touched_.erase(touched_.begin());
        JudgeText(path);
    } else if (!stale_.empty()) {
        const TreePlace tree = *stale_.begin();
        try {
            JudgeTree(tree);
        } catch (const Interrupted&) {
            return;  // later, then
        }
        stale_.erase(tree);
    }
}

void Diagnostics::JudgeText(const fs::path& path) {
    const auto tree = workspace_.TreeOf(path);
    if (!tree) {
        return;
    }
    const auto cost = costs_.find(*tree);
    if (cost != costs_.end() && cost->second < kCheap && touched_.empty()) {
        try {
            JudgeTree(*tree);
            stale_.erase(*tree);
        } catch (const Interrupted&) {
        }
        return;
    }
    try {
        const Snapshot snapshot = workspace_.Look(*tree);
        const auto file = snapshot.FileAt(path);
        if (file && snapshot.GetTree().Files()[*file].kind == lm_tree::FileKind::Texts &&
            !snapshot.CulturesOf(*file).empty()) {
            const ByFile findings = FindingsOf(snapshot, JudgeFile(snapshot, *file));
            const auto own = findings.find(path);
            Publish(path, own != findings.end() ? own->second : Json::array());
        }
    } catch (const std::exception&) {
        // Nothing is known of the file alone: the reference may have no such scope. The judgement of
        // the tree tells.
    }
}

void Diagnostics::JudgeTree(const TreePlace& tree) {
    const auto begin = std::chrono::steady_clock::now();
    ByFile findings;
    try {
        const Snapshot snapshot = workspace_.Look(tree);
        lm_check::CheckOptions options = workspace_.GetSettings().check;
        options.progress = [this](std::size_t, std::size_t) {
            if (surroundings_.isAwaited()) {
                throw Interrupted();
            }
        };
        findings = FindingsOf(snapshot, Check(snapshot.GetTree(), options, LockOf(snapshot)));
    } catch (const std::exception& error) {
        surroundings_.notify("window/logMessage", {{"type", 1}, {"message", error.what()}});
    }
    const ByFile before = std::exchange(told_[tree], {});
    for (const auto& [path, known] : before) {
        findings.try_emplace(path, Json::array());
    }
    for (const fs::path& path : untold_) {
        const auto itsTree = workspace_.TreeOf(path);
        if (itsTree && !(*itsTree < tree) && !(tree < *itsTree)) {
            findings.try_emplace(path, Json::array());
        }
    }
    for (const auto& [path, found] : findings) {
        const auto known = before.find(path);
        const bool isNew = (known == before.end() ? Json::array() : known->second) != found;
        if (isNew || untold_.count(path) != 0) {
            Publish(path, found);
        } else {
            told_[tree].insert_or_assign(path, found);
        }
    }
    costs_[tree] =
        std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
}

void Diagnostics::Publish(const fs::path& path, const Json& findings) {
    const std::string uri = workspace_.UriOf(path);
    Json params = {{"uri", uri}, {"diagnostics", findings}};
    const OpenText* const text = workspace_.Find(uri);
    if (text != nullptr && text->Version()) {
        params["version"] = *text->Version();
    }
    surroundings_.notify("textDocument/publishDiagnostics", std::move(params));
    untold_.erase(path);
    if (const auto tree = workspace_.TreeOf(path)) {
        if (findings.empty()) {
            told_[*tree].erase(path);
        } else {
            told_[*tree].insert_or_assign(path, findings);
        }
    }
}

Diagnostics::ByFile Diagnostics::FindingsOf(const Snapshot& snapshot,
                                            const lm_check::Report& report) const {
    ByFile findings;
    for (const lm_check::Finding& finding : report.findings) {
        Json& list =
            findings.try_emplace(PathOf(snapshot, finding.location), Json::array()).first->second;
        if (list.size() < kMostOfFile) {
            list.push_back(DiagnosticOf(workspace_, snapshot, finding));
        } else if (list.size() == kMostOfFile) {
            Json rest = list.front();
            rest.erase("relatedInformation");
            rest.erase("code");
            rest["range"] = RangeOf(lm_source::Place(), lm_source::Place());
            rest["message"] = "more is wrong with this file than is shown: run 'localize check'";
            list.push_back(std::move(rest));
        }
    }
    return findings;
}

}  // namespace lm_lsp
