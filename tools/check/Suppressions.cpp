#include "check/Suppressions.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "source/comments.h"

namespace lm_check {

namespace {

constexpr std::string_view kMark = "localize: ignore";
constexpr std::string_view kBlanks = " \t";

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        return text.substr(0, 0);  // still a part of it
    }
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// What a comment asks to ignore, and its reason; empty when it does not ask.
std::optional<std::string_view> ListOf(std::string_view comment) {
    const std::size_t begin = comment.find_first_not_of("; \t");
    if (begin == std::string_view::npos || comment.substr(begin, kMark.size()) != kMark) {
        return std::nullopt;
    }
    const std::string_view list = comment.substr(begin + kMark.size());
    return list.empty() || kBlanks.find(list.front()) != std::string_view::npos
               ? std::optional(WithoutBlanks(list))
               : std::nullopt;
}

/// The names of the list, which ends with the first name that no comma follows; views of it.
std::vector<std::string_view> NamesOf(std::string_view list) {
    std::vector<std::string_view> names;
    for (bool goesOn = true; goesOn;) {
        list = WithoutBlanks(list);
        const std::size_t end = std::min(list.find_first_of(", \t"), list.size());
        names.push_back(list.substr(0, end));
        list = WithoutBlanks(list.substr(end));
        goesOn = !list.empty() && list.front() == ',';
        list.remove_prefix(goesOn ? 1 : 0);
    }
    return names;
}

/// What a comment at an entry is about. A mistake stands behind what is known of its entry.
Range AboutOf(const lm_source::Document& document, std::size_t number) {
    const auto& entries = document.Entries();
    Range about = lm_source::Document::RangeOf(entries[number]);
    if (entries[number].isFaulty) {
        about.end = number + 1 < entries.size() ? entries[number + 1].key.begin
                                                : document.Content().end + 1;
    }
    return about;
}

}  // namespace

void Suppressions::Read(const TextFile& file, bool isJudged) {
    const lm_source::Document& document = file.document;
    if (document.Bytes().find(kMark) == std::string_view::npos) {
        return;
    }
    const auto& entries = document.Entries();
    std::vector<Range> read;
    const auto readAbout = [&](Range comment, Range about) {
        Add(file, comment, about, false, isJudged);
        read.push_back(comment);
    };
    for (std::size_t number = 0; number < entries.size(); ++number) {
        for (const Range above : CommentsAbove(document, number)) {
            readAbout(above, AboutOf(document, number));
        }
        const Range after = CommentAfter(document, number);
        if (!after.empty()) {
            readAbout(after, AboutOf(document, number));
        }
    }
    const std::uint32_t firstEntry =
        entries.empty() ? document.Content().end : entries.front().key.begin;
    const auto isBefore = [](Range left, Range right) { return left.begin < right.begin; };
    for (const lm_source::Comment& comment : CommentsOf(document)) {
        if (!std::binary_search(read.begin(), read.end(), comment.range, isBefore)) {
            // In the middle of nowhere it is about nothing.
            Add(file, comment.range, {comment.range.begin, comment.range.begin},
                comment.range.begin < firstEntry, isJudged);
        }
    }
}

void Suppressions::Add(const TextFile& file, Range comment, Range about, bool isAboutFile,
                       bool isJudged) {
    const lm_source::Document& document = file.document;
    const auto list = ListOf(document.Bytes(comment));
    if (!list) {
        return;
    }
    Comment added;
    const SourceView view{file.file, document.Bytes(), document.Lines()};
    added.location = view.At(comment);
    added.about = isAboutFile ? Range() : about;
    added.isAboutFile = isAboutFile;
    added.isJudged = isJudged;
    added.line = document.Bytes(comment);
    for (const std::string_view name : NamesOf(*list)) {
        const auto begin = static_cast<std::uint32_t>(name.data() - document.Bytes().data());
        const Range range = {begin, begin + static_cast<std::uint32_t>(name.size())};
        added.names.push_back({std::string(name), RuleOfName(name), view.At(range)});
    }
    comments_.push_back(std::move(added));
}

void Suppressions::Merge(Suppressions&& other) {
    std::move(other.comments_.begin(), other.comments_.end(), std::back_inserter(comments_));
    other.comments_.clear();
}

/// Comments by what they are about.
class Suppressions::Index {
public:
    explicit Index(std::vector<Comment>& comments) {
        for (Comment& comment : comments) {
            byPlace_.emplace(KeyOf(comment.location, comment.isAboutFile, comment.about.begin),
                             &comment);
        }
    }

    bool Matches(const Finding& finding) const {
        // A finding at no entry's place is about the file.
        const bool isOfFile = finding.location.range == Range();
        const std::uint32_t place = finding.location.range.begin;
        auto comment = byPlace_.upper_bound(KeyOf(finding.location, isOfFile, place));
        bool matches = false;
        // Entries do not overlap, so that the comments about this one stand together.
        while (comment != byPlace_.begin() &&
               IsAbout(*std::prev(comment), finding.location, isOfFile)) {
            --comment;
            for (Name& name : comment->second->names) {
                if (name.rule == finding.rule) {
                    name.isUsed = true;
                    matches = true;
                }
            }
        }
        return matches;
    }

private:
    using Key = std::tuple<Side, std::string_view, bool, std::uint32_t>;

    static Key KeyOf(const Location& location, bool isOfFile, std::uint32_t begin) {
        return {location.side, location.path, isOfFile, begin};
    }

    static bool IsAbout(const std::pair<const Key, Comment*>& entry, const Location& location,
                        bool isOfFile) {
        const Range about = entry.second->about;
        return entry.first == KeyOf(location, isOfFile, about.begin) &&
               (isOfFile || location.range.begin < about.end);
    }

    std::multimap<Key, Comment*> byPlace_;
};

std::size_t Suppressions::Apply(std::vector<Finding>& findings, Collector& unused,
                                const CheckOptions& options) {
    const Index index(comments_);
    const auto kept = std::remove_if(findings.begin(), findings.end(), [&](const Finding& finding) {
        return index.Matches(finding);
    });
    const auto removed = static_cast<std::size_t>(findings.end() - kept);
    findings.erase(kept, findings.end());
    for (const Comment& comment : comments_) {
        AddUnused(comment, options, unused);
    }
    return removed;
}

void Suppressions::AddUnused(const Comment& comment, const CheckOptions& options,
                             Collector& unused) {
    for (const Name& name : comment.names) {
        if (name.rule && (name.isUsed || !comment.isJudged || !options.IsOn(*name.rule))) {
            continue;
        }
        unused.AddUnused(name.location, comment.line,
                         name.location.range.begin - comment.location.range.begin,
                         (name.rule ? "nothing to ignore of " + name.text
                                    : "no rule is called '" + name.text + "'") +
                             ": remove it from the comment, which stands directly above "
                             "or after its entry, or above all of them with an empty "
                             "line below");
    }
}

}  // namespace lm_check
