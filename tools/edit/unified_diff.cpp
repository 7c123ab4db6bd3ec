#include "edit/unified_diff.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace lm_edit {

using lm_source::Edit;

namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t kContext = 3;

/// With their line feeds.
Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.emplace_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

/// Lines that others take the place of.
struct Change {
    std::size_t begin;
    std::size_t end;
    Lines added;
};

/// Leaves out what is the same at the start and at the end.
Change Trimmed(const Lines& before, Change change) {
    Lines& added = change.added;
    while (!added.empty() && change.begin < change.end && added.front() == before[change.begin]) {
        added.erase(added.begin());
        ++change.begin;
    }
    while (!added.empty() && change.begin < change.end && added.back() == before[change.end - 1]) {
        added.pop_back();
        --change.end;
    }
    return change;
}

class Differ {
public:
    Differ(std::string_view before, std::vector<Edit> edits)
        : before_(before), lines_(LinesOf(before)), edits_(std::move(edits)) {
        for (const std::string& line : lines_) {
            starts_.push_back(starts_.back() + line.size());
        }
        std::stable_sort(edits_.begin(), edits_.end(), [](const Edit& left, const Edit& right) {
            return left.range.begin < right.range.begin;
        });
    }

    std::string Print() {
        FindChanges();
        std::string text;
        for (auto first = changes_.begin(); first != changes_.end();) {
            auto last = first + 1;
            while (last != changes_.end() && last->begin - (last - 1)->end <= 2 * kContext) {
                ++last;
            }
            PrintHunk(text, first, last);
            first = last;
        }
        return text;
    }

private:
    using Position = std::vector<Change>::const_iterator;

    /// The line that holds an offset; the end of the text belongs to a last line without line feed.
    std::size_t LineOf(std::size_t offset) const {
        const auto next = std::upper_bound(starts_.begin(), starts_.end(), offset);
        const auto line = static_cast<std::size_t>(next - starts_.begin()) - 1;
        const bool isOpen = !lines_.empty() && lines_.back().back() != '\n';
        return line == lines_.size() && isOpen ? line - 1 : line;
    }

    void FindChanges() {
        for (auto edit = edits_.begin(); edit != edits_.end();) {
            const std::size_t begin = LineOf(edit->range.begin);
            std::size_t end = begin;
            std::vector<Edit> together;
            do {
                end = std::min(LineOf(edit->range.end) + 1, lines_.size());
                together.push_back(*edit++);
            } while (edit != edits_.end() && LineOf(edit->range.begin) < end);
            const std::size_t start = starts_[begin];
            for (Edit& one : together) {
                one.range.begin -= static_cast<std::uint32_t>(start);
                one.range.end -= static_cast<std::uint32_t>(start);
            }
            const std::string_view part = before_.substr(start, starts_[end] - start);
            Change change =
                Trimmed(lines_, {begin, end, LinesOf(Apply(part, std::move(together)))});
            if (change.begin != change.end || !change.added.empty()) {
                changes_.push_back(std::move(change));
            }
        }
    }

    void PrintHunk(std::string& text, Position first, Position last) {
        const std::size_t begin = first->begin - std::min(first->begin, kContext);
        const std::size_t end = std::min((last - 1)->end + kContext, lines_.size());
        std::string body;
        std::size_t line = begin;
        std::ptrdiff_t growth = 0;
        for (auto change = first; change != last; ++change) {
            for (; line < change->begin; ++line) {
                PrintLine(body, ' ', lines_[line]);
            }
            for (; line < change->end; ++line) {
                PrintLine(body, '-', lines_[line]);
            }
            for (const std::string& added : change->added) {
                PrintLine(body, '+', added);
            }
            growth += static_cast<std::ptrdiff_t>(change->added.size()) -
                      static_cast<std::ptrdiff_t>(change->end - change->begin);
        }
        for (; line < end; ++line) {
            PrintLine(body, ' ', lines_[line]);
        }
        const auto size = static_cast<std::ptrdiff_t>(end - begin);
        const auto at = static_cast<std::ptrdiff_t>(begin);
        text += "@@ -" + RangeText(at, size) + " +" + RangeText(at + shift_, size + growth) +
                " @@\n" + body;
        shift_ += growth;
    }

    static std::string RangeText(std::ptrdiff_t begin, std::ptrdiff_t size) {
        return std::to_string(size == 0 ? begin : begin + 1) + ',' + std::to_string(size);
    }

    static void PrintLine(std::string& text, char sign, const std::string& line) {
        text += sign + line;
        text += line.back() == '\n' ? "" : "\n\\ No newline at end of file\n";
    }

    std::string_view before_;
    Lines lines_;
    std::vector<Edit> edits_;
    std::vector<std::size_t> starts_{0};
    std::vector<Change> changes_;
    std::ptrdiff_t shift_ = 0;  // of the lines behind the hunks so far
};

}  // namespace

std::string UnifiedDiff(const std::string& path, std::string_view before,
                        const std::vector<Edit>& edits) {
    const std::string hunks = Differ(before, edits).Print();
    return hunks.empty() ? hunks : "--- " + path + "\n+++ " + path + '\n' + hunks;
}

}  // namespace lm_edit
