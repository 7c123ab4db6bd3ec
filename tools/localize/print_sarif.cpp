#include <algorithm>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>

#include "print_findings.h"
#include "request_groups.h"

namespace localize {

using Json = nlohmann::ordered_json;
using lm_check::Finding;
using lm_check::InfoOf;
using lm_check::Severity;

namespace {

const char* LevelOf(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

/// A path as the address that it is relative to where the check runs.
std::string UriOf(const std::string& path) {
    constexpr std::string_view kPlain = "-._~/!$&'()*+,;=@";
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string uri;
    for (const char unit : path) {
        const auto value = static_cast<unsigned char>(unit);
        const bool isAlphanumeric = (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'z') ||
                                    (unit >= 'A' && unit <= 'Z');
        if (isAlphanumeric || kPlain.find(unit) != std::string::npos) {
            uri += unit;
        } else {
            uri.append({'%', kDigits[value / 16], kDigits[value % 16]});
        }
    }
    return uri;
}

Json LocationOf(const lm_check::Location& location, const FindingPaths& paths) {
    Json json;
    json["physicalLocation"]["artifactLocation"]["uri"] = UriOf(paths.Relative(location));
    json["physicalLocation"]["region"] = {{"startLine", location.begin.line},
                                          {"startColumn", location.begin.column},
                                          {"endLine", location.end.line},
                                          {"endColumn", location.end.column}};
    return json;
}

/// Names a finding in spite of changes elsewhere in its file: no line takes part.
class Fingerprints {
public:
    std::string Of(const Finding& finding) {
        const std::string identity = std::string(InfoOf(finding.rule).name) + '\n' +
                                     finding.location.path + '\n' + finding.key;
        return identity + '\n' + std::to_string(++counts_[identity]);
    }

private:
    std::map<std::string, std::size_t> counts_;
};

std::string HashOf(const std::string& text) {
    std::uint64_t hash = 14'695'981'039'346'656'037U;  // FNV-1a
    for (const char unit : text) {
        hash = (hash ^ static_cast<unsigned char>(unit)) * 1'099'511'628'211U;
    }
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) {
        digits += "0123456789abcdef"[hash >> static_cast<unsigned>(shift) & 0xFU];
    }
    return digits;
}

Json RulesOf() {
    Json rules = Json::array();
    for (const lm_check::RuleInfo& info : lm_check::AllRules()) {
        rules.push_back({{"id", info.name},
                         {"shortDescription", {{"text", info.description}}},
                         {"defaultConfiguration",
                          {{"enabled", info.isOn}, {"level", LevelOf(info.severity)}}}});
    }
    return rules;
}

Json ResultOf(const lm_check::Report& report, const Finding& finding, const FindingPaths& paths,
              Fingerprints& fingerprints) {
    Json result;
    result["ruleId"] = InfoOf(finding.rule).name;
    result["ruleIndex"] = static_cast<std::size_t>(finding.rule);
    result["level"] = LevelOf(finding.severity);
    result["message"]["text"] = finding.message;
    Json location = LocationOf(finding.location, paths);
    if (!finding.key.empty()) {
        location["logicalLocations"] = {
            {{"fullyQualifiedName", finding.key}, {"kind", "resource"}}};
    }
    result["locations"] = {std::move(location)};
    for (const lm_check::Related& related : finding.related) {
        Json other = LocationOf(related.location, paths);
        other["message"]["text"] = related.message;
        result["relatedLocations"].push_back(std::move(other));
    }
    result["partialFingerprints"]["localize/v1"] = HashOf(fingerprints.Of(finding));
    for (const RequestGroup& group : GroupsOf(report, finding)) {
        result["properties"]["holdsFor"].push_back(
            {{"cultures", group.cultures}, {"scopes", group.scopes}});
    }
    return result;
}

/// Errors before warnings, since not all may be told.
std::vector<const Finding*> InOrder(const lm_check::Report& report) {
    std::vector<const Finding*> findings;
    for (const Finding& finding : report.findings) {
        findings.push_back(&finding);
    }
    std::stable_sort(
        findings.begin(), findings.end(),
        [](const Finding* left, const Finding* right) { return left->severity < right->severity; });
    return findings;
}

}  // namespace

void PrintSarif(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths) {
    Json run;
    run["tool"]["driver"] = {
        {"name", "localize"}, {"version", LOCALIZE_VERSION}, {"rules", RulesOf()}};
    Json invocation = {{"executionSuccessful", true}};
    const std::size_t all = report.findings.size();
    if (all > kMaxSarifResults) {
        const std::size_t omitted = all - kMaxSarifResults;
        invocation["toolExecutionNotifications"] = {
            {{"level", "warning"},
             {"message",
              {{"text", std::to_string(omitted) + " of " + std::to_string(all) +
                            " findings are left out; the text and JSON forms have them all"}}}}};
        run["properties"] = {{"omittedResults", omitted}};
    }
    run["invocations"] = {std::move(invocation)};
    run["columnKind"] = "utf16CodeUnits";
    run["results"] = Json::array();
    Fingerprints fingerprints;
    const auto findings = InOrder(report);
    for (std::size_t i = 0; i < std::min(all, kMaxSarifResults); ++i) {
        run["results"].push_back(ResultOf(report, *findings[i], paths, fingerprints));
    }
    Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                {"version", "2.1.0"},
                {"runs", Json::array({std::move(run)})}};
    output << log.dump(1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace localize
