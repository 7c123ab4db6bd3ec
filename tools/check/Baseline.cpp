#include "check/Baseline.h"

#include <algorithm>
#include <stdexcept>

#include "check/for_each_line.h"

namespace lm_check {

namespace {

constexpr const char* kNobody = "-";

/// A scope's name may hold a blank, which separates here.
std::string Encode(const std::string& text) {
    std::string encoded;
    for (const char unit : text) {
        encoded += unit == ' ' ? std::string("%20") : std::string(1, unit);
    }
    return encoded;
}

std::string SubjectOf(const Finding& finding) {
    return finding.key.empty() ? finding.location.path : finding.key;
}

std::string EntryOf(const Finding& finding, const std::string& culture, const std::string& scope) {
    return std::string(InfoOf(finding.rule).name) + ' ' + culture + ' ' + Encode(scope) + ' ' +
           SubjectOf(finding);
}

std::string EntryOf(const Finding& finding, Request request, const Report& report) {
    return EntryOf(finding, report.cultures[request.culture], report.scopes[request.scope]);
}

/// The parts of an entry; the last holds the rest.
std::vector<std::string> PartsOf(const std::string& entry) {
    constexpr std::size_t kParts = 4;
    std::vector<std::string> parts;
    std::size_t begin = 0;
    while (parts.size() + 1 < kParts) {
        const std::size_t end = entry.find(' ', begin);
        if (end == std::string::npos) {
            return {};
        }
        parts.push_back(entry.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.push_back(entry.substr(begin));
    return parts;
}

}  // namespace

Baseline::Baseline(std::string_view text) {
    ForEachLine(text, [this](const std::string& line, std::size_t number) {
        const auto parts = PartsOf(line);
        if (parts.empty() || !RuleOfName(parts.front())) {
            throw std::invalid_argument("line " + std::to_string(number) +
                                        " of the baseline is not 'rule culture scope key'");
        }
        entries_.insert(line);
    });
}

std::string Baseline::Text() const {
    std::string text;
    for (const std::string& entry : entries_) {
        text.append(entry).append("\n");
    }
    return text;
}

bool Baseline::Matches(const std::string& entry) {
    if (entries_.count(entry) == 0) {
        return false;
    }
    used_.insert(entry);
    return true;
}

void Baseline::Apply(Report& report) {
    if (entries_.empty()) {
        return;
    }
    const auto isKnown = [&](Finding& finding) {
        if (finding.requests.empty()) {
            return Matches(EntryOf(finding, kNobody, kNobody));
        }
        auto& requests = finding.requests;
        requests.erase(std::remove_if(requests.begin(), requests.end(),
                                      [&](Request request) {
                                          return Matches(EntryOf(finding, request, report));
                                      }),
                       requests.end());
        return requests.empty();
    };
    const auto kept = std::remove_if(report.findings.begin(), report.findings.end(), isKnown);
    report.baselined += static_cast<std::size_t>(report.findings.end() - kept);
    report.findings.erase(kept, report.findings.end());
}

std::vector<std::string> Baseline::Unused(const Report& report, const CheckOptions& options) const {
    std::vector<std::string> unused;
    for (const std::string& entry : entries_) {
        const auto parts = PartsOf(entry);
        const bool isAboutNobody = parts[1] == kNobody;
        const bool wasJudged =
            options.IsWhole() ||
            (!isAboutNobody && options.scopes.empty() &&
             std::count(report.cultures.begin(), report.cultures.end(), parts[1]) != 0);
        if (used_.count(entry) == 0 && wasJudged && options.IsOn(*RuleOfName(parts.front()))) {
            unused.push_back(entry);
        }
    }
    return unused;
}

void Baseline::Remove(const std::vector<std::string>& entries) {
    for (const std::string& entry : entries) {
        entries_.erase(entry);
    }
}

void Baseline::Add(const Report& report) {
    for (const Finding& finding : report.findings) {
        if (finding.rule == Rule::UnusedSuppression) {
            continue;  // to be removed, not to be kept
        }
        if (finding.requests.empty()) {
            entries_.insert(EntryOf(finding, kNobody, kNobody));
        }
        for (const Request request : finding.requests) {
            entries_.insert(EntryOf(finding, request, report));
        }
    }
}

}  // namespace lm_check
