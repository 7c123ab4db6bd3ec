#include "check_command.h"

#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include "FindingPaths.h"
#include "Platform.h"
#include "ProgressLine.h"
#include "UsageError.h"
#include "check/Baseline.h"
#include "check/accept.h"
#include "check/check.h"
#include "edit/write_whole.h"
#include "print_findings.h"
#include "read_lock.h"
#include "read_text.h"
#include "request_groups.h"
#include "tree/path_text.h"

namespace localize {

namespace fs = std::filesystem;

namespace {

void Switch(lm_check::CheckOptions& options, const std::vector<std::string>& names, bool isOn) {
    for (const std::string& name : names) {
        const auto rule = lm_check::RuleOfName(name);
        if (!rule) {
            throw UsageError("unknown rule '" + name + "'");
        }
        options.switches[*rule] = isOn;
    }
}

lm_check::CheckOptions OptionsOf(const CheckSettings& settings) {
    lm_check::CheckOptions options;
    options.reference = settings.reference;
    options.cultures = settings.cultures;
    options.scopes = settings.scopes;
    options.params = {settings.params.begin(), settings.params.end()};
    Switch(options, settings.enabled, true);
    Switch(options, settings.disabled, false);
    return options;
}

lm_tree::Overlay OverlayOf(const CheckSettings& settings) {
    if (settings.file.empty()) {
        return {};
    }
    if (settings.file.back() != kStandardInput) {
        throw UsageError("--file takes a path and '-'");
    }
    const fs::path path = fs::absolute(lm_tree::PathOf(settings.file.front())).lexically_normal();
    for (const std::string& tree : {settings.root, settings.alternative}) {
        if (tree.empty()) {
            continue;
        }
        const fs::path base = fs::absolute(lm_tree::PathOf(tree)).lexically_normal();
        const std::string below = lm_tree::Utf8Of(path.lexically_relative(base));
        if (!below.empty() && below.compare(0, 2, "..") != 0) {
            return {{path, ReadBytes(kStandardInput)}};
        }
    }
    throw UsageError("'" + settings.file.front() + "' does not lie in the tree");
}

void AddUnused(lm_check::Report& report, const std::string& baseline,
               const std::vector<std::string>& entries) {
    for (const std::string& entry : entries) {
        lm_check::Finding finding;
        finding.rule = lm_check::Rule::UnusedSuppression;
        finding.severity = lm_check::Severity::Warning;
        finding.location.path = baseline;
        finding.location.isInTree = false;
        finding.key = entry;
        finding.message = "the baseline's entry '" + entry +
                          "' matches nothing any more: run with --update-baseline";
        report.findings.push_back(std::move(finding));
    }
}

void ApplyBaseline(const CheckSettings& settings, const lm_check::CheckOptions& options,
                   lm_check::Report& report) {
    if (settings.baseline.empty()) {
        return;
    }
    const fs::path path = lm_tree::PathOf(settings.baseline);
    const std::string before =
        settings.growsBaseline ? ReadIfThere(path) : ReadBytes(settings.baseline);
    lm_check::Baseline baseline;
    try {
        baseline = lm_check::Baseline(before);
    } catch (const std::invalid_argument& unreadable) {
        throw std::runtime_error("'" + settings.baseline + "': " + unreadable.what());
    }
    baseline.Apply(report);
    const auto unused = baseline.Unused(report, options);
    if (!settings.updatesBaseline && !settings.growsBaseline) {
        if (options.IsOn(lm_check::Rule::UnusedSuppression)) {
            AddUnused(report, settings.baseline, unused);
        }
        return;
    }
    baseline.Remove(unused);
    if (settings.growsBaseline) {
        baseline.Add(report);
        baseline.Apply(report);
    }
    if (baseline.Text() != before) {
        lm_edit::WriteWhole(path, baseline.Text());
    }
}

void Print(Format format, const lm_check::Report& report, const FindingPaths& paths) {
    switch (format) {
        case Format::Text:
            PrintText(std::cout, report, paths);
            break;
        case Format::Json:
            PrintJson(std::cout, report, paths);
            break;
        case Format::Sarif:
            PrintSarif(std::cout, report, paths);
            break;
        case Format::GitHub:
            PrintGitHub(std::cout, report, paths);
            break;
    }
}

bool Passes(const CheckSettings& settings, const lm_check::Report& report) {
    for (const lm_check::Finding& finding : report.findings) {
        if (settings.failsOnWarnings || finding.severity == lm_check::Severity::Error ||
            finding.rule == lm_check::Rule::UnusedSuppression) {
            return false;
        }
    }
    return true;
}

/// A report that nobody gets is as none.
void Flush() {
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write to standard output");
    }
}

}  // namespace

bool RunCheck(const CheckSettings& settings) {
    Platform::ReturnFreedMemory();
    lm_check::CheckOptions options = OptionsOf(settings);
    const fs::path root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, lm_tree::PathOf(settings.alternative), OverlayOf(settings));
    ProgressLine progress;
    options.progress = [&](std::size_t done, std::size_t all) { progress.Show(done, all); };
    lm_check::Report report = Check(tree, options, ReadLock(root));
    progress.Wipe();
    ApplyBaseline(settings, options, report);
    Print(settings.format, report, FindingPaths(tree));
    Flush();
    return Passes(settings, report);
}

void RunAccept(const CheckSettings& settings) {
    const fs::path root = lm_tree::PathOf(settings.root);
    const lm_tree::Tree tree(root, {});
    lm_check::TranslationLock lock = ReadLock(root);
    const std::string before = lock.Text();
    const std::size_t count = Accept(tree, OptionsOf(settings), settings.keys, lock);
    if (lock.Text() != before) {
        lm_edit::WriteInTree(root, root / lm_check::TranslationLock::kFileName, lock.Text());
    }
    std::cout << count << (count == 1 ? " text" : " texts") << " accepted\n";
    Flush();
}

}  // namespace localize
