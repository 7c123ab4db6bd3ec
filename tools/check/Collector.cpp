#include "check/Collector.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>
#include <utility>

namespace lm_check {

namespace {

/// A line may be as long as its file; people see so many bytes on either side of a place.
constexpr std::uint32_t kSight = 120;

bool IsInsideCharacter(std::string_view bytes, std::uint32_t offset) {
    return offset < bytes.size() && (static_cast<unsigned char>(bytes[offset]) & 0xC0U) == 0x80;
}

void AddLine(Finding& finding, const SourceView& source) {
    const Range line = source.lines.RangeOf(source.bytes, finding.location.begin.line);
    const std::uint32_t at = std::clamp(finding.location.range.begin, line.begin, line.end);
    std::uint32_t begin = at - line.begin > kSight ? at - kSight : line.begin;
    std::uint32_t end = line.end - at > kSight ? at + kSight : line.end;
    while (begin < at && IsInsideCharacter(source.bytes, begin)) {
        ++begin;
    }
    while (end > at && IsInsideCharacter(source.bytes, end)) {
        --end;
    }
    finding.line = source.bytes.substr(begin, end - begin);
    finding.caret = at - begin;
}

std::uint64_t HashOf(const Finding& finding) {
    std::uint64_t hash = std::hash<std::string_view>()(finding.location.path);
    hash = hash * 31 + finding.location.range.begin;
    hash = hash * 31 + static_cast<std::uint64_t>(finding.rule);
    return hash * 31 + std::hash<std::string_view>()(finding.message);
}

bool AreSame(const Finding& left, const Finding& right) {
    return left.rule == right.rule && left.severity == right.severity &&
           left.location.side == right.location.side &&
           left.location.range == right.location.range &&
           left.location.path == right.location.path && left.message == right.message;
}

void AddRequests(Finding& finding, const std::vector<Request>& requests) {
    std::vector<Request> all;
    all.reserve(finding.requests.size() + requests.size());
    std::set_union(finding.requests.begin(), finding.requests.end(), requests.begin(),
                   requests.end(), std::back_inserter(all));
    finding.requests = std::move(all);
}

}  // namespace

Location SourceView::At(Range range) const {
    return {file.side, file.path, range, lines.PlaceOf(bytes, range.begin),
            lines.PlaceOf(bytes, range.end)};
}

Finding* Collector::Add(Rule rule, const SourceView& source, Range range, std::string_view key,
                        const std::vector<Request>& requests, std::string message) {
    const Severity severity = requests.empty() ? Severity::Warning : InfoOf(rule).severity;
    return AddAt(severity, rule, source, range, key, requests, std::move(message));
}

Finding* Collector::AddWarning(Rule rule, const SourceView& source, Range range,
                               std::string_view key, const std::vector<Request>& requests,
                               std::string message) {
    return AddAt(Severity::Warning, rule, source, range, key, requests, std::move(message));
}

Finding* Collector::AddAt(Severity severity, Rule rule, const SourceView& source, Range range,
                          std::string_view key, const std::vector<Request>& requests,
                          std::string message) {
    if (!Wants(rule)) {
        return nullptr;
    }
    Finding finding;
    finding.rule = rule;
    finding.severity = severity;
    finding.location = source.At(range);
    finding.key = key;
    finding.requests = requests;
    finding.message = std::move(message);
    AddLine(finding, source);
    return Add(std::move(finding));
}

Finding* Collector::AddWhole(Rule rule, Side side, const std::string& path,
                             const std::vector<Request>& requests, std::string message,
                             std::string_view key) {
    if (!Wants(rule)) {
        return nullptr;
    }
    Finding finding;
    finding.rule = rule;
    finding.severity = requests.empty() ? Severity::Warning : InfoOf(rule).severity;
    finding.location.side = side;
    finding.location.path = path;
    finding.key = key;
    finding.requests = requests;
    finding.message = std::move(message);
    return Add(std::move(finding));
}

void Collector::AddUnused(const Location& location, const std::string& line, std::uint32_t caret,
                          std::string message) {
    if (Wants(Rule::UnusedSuppression)) {
        Finding finding;
        finding.rule = Rule::UnusedSuppression;
        finding.severity = Severity::Warning;
        finding.location = location;
        finding.line = line;
        finding.caret = caret;
        finding.message = std::move(message);
        Add(std::move(finding));
    }
}

Finding* Collector::Add(Finding finding) {
    const std::uint64_t hash = HashOf(finding);
    const auto [begin, end] = known_.equal_range(hash);
    const auto same = std::find_if(
        begin, end, [&](const auto& known) { return AreSame(findings_[known.second], finding); });
    if (same != end) {
        AddRequests(findings_[same->second], finding.requests);
        return nullptr;
    }
    known_.emplace(hash, findings_.size());
    findings_.push_back(std::move(finding));
    return &findings_.back();
}

void Collector::Merge(Collector&& other) {
    for (Finding& finding : other.findings_) {
        Add(std::move(finding));
    }
    other.findings_.clear();
}

std::vector<Finding> Collector::Take() {
    SortFindings(findings_);
    known_.clear();
    return std::exchange(findings_, {});
}

void SortFindings(std::vector<Finding>& findings) {
    std::sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        const Location& l = left.location;
        const Location& r = right.location;
        return std::tie(l.side, l.path, l.range.begin, left.rule, left.message, left.severity) <
               std::tie(r.side, r.path, r.range.begin, right.rule, right.message, right.severity);
    });
}

}  // namespace lm_check
