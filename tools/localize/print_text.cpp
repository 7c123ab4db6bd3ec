#include <algorithm>
#include <string>
#include <string_view>

#include "counted.h"
#include "print_findings.h"
#include "request_groups.h"

namespace localize {

using lm_check::Finding;
using lm_check::InfoOf;
using lm_check::Report;
using lm_check::Severity;

namespace {

/// So many cultures or scopes are named; the others are counted.
constexpr std::size_t kMaxNames = 8;

/// What a terminal would take for a command is replaced.
std::string Printable(std::string_view text) {
    std::string printable;
    printable.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto value = static_cast<unsigned char>(text[at]);
        const bool isControl = (value < 0x20 && value != '\t' && value != '\n') || value == 0x7F;
        const bool isWideControl = value == 0xC2 && at + 1 < text.size() &&  // U+0080 to U+009F
                                   static_cast<unsigned char>(text[at + 1]) < 0xA0;
        printable += isControl || isWideControl ? '?' : text[at];
        at += isWideControl ? 1 : 0;
    }
    return printable;
}

std::string List(const std::vector<std::string>& names) {
    std::string list;
    for (std::size_t i = 0; i < std::min(names.size(), kMaxNames); ++i) {
        list += (i == 0 ? "" : ", ") + names[i];
    }
    if (names.size() > kMaxNames) {
        list += " and " + std::to_string(names.size() - kMaxNames) + " more";
    }
    return list;
}

/// As wide as what stands before the caret, so that it stands below its character.
std::string Indent(std::string_view before) {
    std::string indent;
    for (const char byte : before) {
        if (byte == '\t') {
            indent += '\t';
        } else if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80) {
            indent += ' ';
        }
    }
    return indent;
}

void PrintLine(std::ostream& output, const Finding& finding) {
    if (!finding.engineText.empty() && finding.engineText.find('\n') != std::string::npos) {
        constexpr std::size_t kLongest = 2000;
        if (finding.engineText.size() <= kLongest) {
            output << Printable(finding.engineText) << '\n';
            return;
        }
    }
    if (!finding.line.empty()) {
        output << "    " << Printable(finding.line) << "\n    "
               << Indent(std::string_view(finding.line).substr(0, finding.caret)) << "^\n";
    }
}

void PrintFinding(std::ostream& output, const Report& report, const Finding& finding,
                  const FindingPaths& paths) {
    const lm_check::Location& at = finding.location;
    output << Printable(paths.Shown(at)) << ':' << at.begin.line << ':' << at.begin.column << ": "
           << (finding.severity == Severity::Error ? "error" : "warning") << ": "
           << Printable(finding.message) << " [" << InfoOf(finding.rule).name << "]\n";
    PrintLine(output, finding);
    for (const lm_check::Related& related : finding.related) {
        output << "  " << Printable(paths.Shown(related.location)) << ':'
               << related.location.begin.line << ':' << related.location.begin.column << ": "
               << Printable(related.message) << '\n';
    }
    for (const RequestGroup& group : GroupsOf(report, finding)) {
        // The common texts are part of every scope.
        const bool isEverywhere = group.scopes.front() == lm_tree::CommonScope();
        output << "  for " << Printable(List(group.cultures)) << " in "
               << (isEverywhere ? "all scopes" : Printable(List(group.scopes))) << '\n';
    }
}

}  // namespace

void PrintText(std::ostream& output, const Report& report, const FindingPaths& paths) {
    for (const Finding& finding : report.findings) {
        PrintFinding(output, report, finding, paths);
    }
    const Counts counts = CountsOf(report);
    output << Counted(counts.errors, "error", "errors") << ", "
           << Counted(counts.warnings, "warning", "warnings");
    if (report.suppressed != 0) {
        output << ", " << report.suppressed << " suppressed";
    }
    if (report.baselined != 0) {
        output << ", " << report.baselined << " in the baseline";
    }
    output << " (" << Counted(report.files, "file", "files") << ", "
           << Counted(report.cultures.size(), "culture", "cultures") << ", "
           << Counted(report.scopes.size(), "scope", "scopes") << ", reference " << report.reference
           << ")\n";
}

}  // namespace localize
