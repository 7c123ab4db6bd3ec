#include "request_groups.h"

#include <algorithm>
#include <map>

namespace localize {

std::vector<RequestGroup> GroupsOf(const lm_check::Report& report,
                                   const lm_check::Finding& finding) {
    std::map<std::uint16_t, std::vector<std::string>> scopesOf;
    for (const lm_check::Request request : finding.requests) {
        scopesOf[request.culture].push_back(report.scopes[request.scope]);
    }
    std::vector<RequestGroup> groups;
    for (const auto& [culture, scopes] : scopesOf) {
        const auto same = std::find_if(
            groups.begin(), groups.end(),
            [&scopes = scopes](const RequestGroup& group) { return group.scopes == scopes; });
        if (same != groups.end()) {
            same->cultures.push_back(report.cultures[culture]);
        } else {
            groups.push_back({{report.cultures[culture]}, scopes});
        }
    }
    return groups;
}

Counts CountsOf(const lm_check::Report& report) {
    Counts counts;
    for (const lm_check::Finding& finding : report.findings) {
        ++(finding.severity == lm_check::Severity::Error ? counts.errors : counts.warnings);
    }
    return counts;
}

}  // namespace localize
