#include <cstdint>
#include <sstream>
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

/// The text shows lines of the tree's files, and GitHub would obey those that look like commands: until it
/// meets the token, which does not occur in the text, it obeys none.
void PrintInert(std::ostream& output, const std::string& text) {
    std::uint32_t number = 1'000'000'000;
    while (text.find(std::to_string(number)) != std::string::npos) {
        ++number;
    }
    output << "::stop-commands::" << number << '\n' << text << "::" << number << "::\n";
}

}  // namespace

void PrintGitHub(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths) {
    std::ostringstream text;
    PrintText(text, report, paths);
    PrintInert(output, text.str());
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
