#include <string>
#include <string_view>

#include "print_findings.h"

namespace localize {

namespace {

/// As the lines of GitHub's commands are read.
std::string Escape(std::string_view text, std::string_view special) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char unit : text) {
        if (special.find(unit) != std::string_view::npos) {
            const auto value = static_cast<unsigned char>(unit);
            escaped.append({'%', kDigits[value / 16], kDigits[value % 16]});
        } else {
            escaped += unit;
        }
    }
    return escaped;
}

constexpr std::string_view kSpecial = "%\r\n";
constexpr std::string_view kSpecialInProperty = "%\r\n:,";

}  // namespace

void PrintGitHub(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths) {
    PrintText(output, report, paths);
    for (const lm_check::Finding& finding : report.findings) {
        const lm_check::Location& at = finding.location;
        output << (finding.severity == lm_check::Severity::Error ? "::error" : "::warning")
               << " file=" << Escape(paths.Relative(at), kSpecialInProperty)
               << ",line=" << at.begin.line << ",col=" << at.begin.column
               << ",title=" << lm_check::InfoOf(finding.rule).name
               << "::" << Escape(finding.message, kSpecial) << '\n';
    }
}

}  // namespace localize
