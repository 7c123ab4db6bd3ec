#include <nlohmann/json.hpp>

#include "print_findings.h"
#include "request_groups.h"

namespace localize {

using Json = nlohmann::ordered_json;

namespace {

constexpr int kVersion = 1;

/// Files may hold, and be called, what is no UTF-8.
std::string Dump(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void AddPlace(Json& json, const lm_check::Location& location, const FindingPaths& paths) {
    json["file"] = paths.Shown(location);
    json["line"] = location.begin.line;
    json["column"] = location.begin.column;
    json["endLine"] = location.end.line;
    json["endColumn"] = location.end.column;
}

Json JsonOf(const lm_check::Report& report, const lm_check::Finding& finding,
            const FindingPaths& paths) {
    Json json;
    json["rule"] = lm_check::InfoOf(finding.rule).name;
    json["severity"] = finding.severity == lm_check::Severity::Error ? "error" : "warning";
    AddPlace(json, finding.location, paths);
    json["key"] = finding.key;
    json["holdsFor"] = Json::array();
    for (const RequestGroup& group : GroupsOf(report, finding)) {
        json["holdsFor"].push_back({{"cultures", group.cultures}, {"scopes", group.scopes}});
    }
    json["message"] = finding.message;
    json["source"] = finding.line;
    if (!finding.engineText.empty()) {
        json["report"] = finding.engineText;
    }
    json["related"] = Json::array();
    for (const lm_check::Related& related : finding.related) {
        Json place;
        AddPlace(place, related.location, paths);
        place["message"] = related.message;
        json["related"].push_back(std::move(place));
    }
    return json;
}

}  // namespace

/// Findings are written one by one: all of them as one document might be large.
void PrintJson(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths) {
    const Counts counts = CountsOf(report);
    const Json summary = {{"errors", counts.errors},
                          {"warnings", counts.warnings},
                          {"suppressed", report.suppressed},
                          {"baselined", report.baselined},
                          {"files", report.files}};
    output << "{\"version\":" << kVersion << ",\"reference\":" << Dump(report.reference)
           << ",\"cultures\":" << Dump(report.cultures) << ",\"scopes\":" << Dump(report.scopes)
           << ",\"summary\":" << Dump(summary) << ",\"findings\":[";
    bool isFirst = true;
    for (const lm_check::Finding& finding : report.findings) {
        output << (isFirst ? "\n" : ",\n") << Dump(JsonOf(report, finding, paths));
        isFirst = false;
    }
    output << "\n]}\n";
}

}  // namespace localize
