#include "report/write_page.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <stdexcept>

#include "report/States.h"
#include "report/html.h"
#include "report/page_assets.h"
#include "source/Document.h"

namespace lm_report {

using lm_check::Finding;
using lm_check::Severity;
using lm_source::Document;

namespace {

using Counts = std::array<std::size_t, kStates>;

constexpr std::array<const char*, kStates> kStateNames = {"done", "stale", "missing", "faulty"};
constexpr std::array<char, kStates> kStateLetters = {'d', 's', 'm', 'f'};

/// Languages that are written from right to left, and the region for pseudo-translations.
bool IsRightToLeft(const std::string& culture) {
    const std::string language = culture.substr(0, culture.find('-'));
    const bool isPseudo = culture.size() > 3 && culture.substr(culture.size() - 3) == "-xb";
    return language == "ar" || language == "fa" || isPseudo;
}

std::string Direction(const std::string& culture) {
    return " lang=\"" + Escaped(culture) + '"' + (IsRightToLeft(culture) ? " dir=rtl" : "");
}

/// Answers that are the same, with the numbers that they are for.
std::string TextsHtml(const std::vector<Answer>& answers) {
    std::string html;
    std::set<std::size_t> done;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        if (!done.insert(i).second) {
            continue;
        }
        std::string numbers = std::to_string(ShownNumbers()[i]);
        for (std::size_t j = i + 1; j < answers.size(); ++j) {
            if (answers[j].isGiven == answers[i].isGiven && answers[j].text == answers[i].text) {
                done.insert(j);
                numbers += " \u00B7 " + std::to_string(ShownNumbers()[j]);
            }
        }
        const bool isOnly = i == 0 && done.size() == answers.size();
        html += "<p>" + (isOnly ? "" : "<i>" + numbers + "</i>");
        html += answers[i].isGiven ? "<q>" + EscapedLines(answers[i].text) + "</q>"
                                   : "<em>" + EscapedLines(answers[i].text) + "</em>";
    }
    return html;
}

class Writer {
public:
    Writer(std::ostream& output, const Page& page)
        : output_(output),
          page_(page),
          report_(page.report),
          states_(page.report),
          counts_(report_.cultures.size(), std::vector<Counts>(report_.scopes.size())) {}

    void Write() {
        const std::string texts = Texts();  // first, since it counts
        WriteHead();
        WriteOverview();
        WriteFindings();
        output_ << "<section id=texts aria-labelledby=texts-title><h2 id=texts-title>Texts</h2>\n"
                   "<p class=hint>Each text in all cultures, made by the module for the numbers 0, "
                   "1, 2, 5 and 21 where it depends on one; other parameters stand in \u2039 "
                   "\u203A.</p>\n<form class=filters data-for=texts></form>\n"
                   "<noscript id=texts-data><ul class=texts>\n"
                << texts << "</ul></noscript>\n</section>\n</main>\n<script nonce=page>"
                << kPageScript << "</script>\n</body>\n</html>\n";
    }

private:
    std::string Texts() {
        std::string html;
        for (std::size_t scope = 0; scope < report_.scopes.size(); ++scope) {
            const auto reference = lm_tree::CultureOfName(report_.reference);
            const auto file = page_.tree.Answer(*reference, report_.scopes[scope]);
            if (!file) {
                continue;
            }
            const Document document(BytesOf(*file));
            for (const lm_source::Entry& entry : document.Entries()) {
                if (document.Find(document.Key(entry)) == &entry) {
                    html += KeyHtml(scope, std::string(document.Key(entry)));
                }
            }
        }
        return html;
    }

    /// A file that cannot be read has no keys; it is among the findings.
    std::string BytesOf(lm_tree::FileId file) const try {
        return page_.tree.Read(file);
    } catch (const std::runtime_error&) {
        return {};
    }

    std::string KeyHtml(std::size_t scope, const std::string& key) {
        ++keys_;
        std::string rows;
        std::string letters;
        for (std::size_t culture = 0; culture < report_.cultures.size(); ++culture) {
            const std::string& name = report_.cultures[culture];
            std::vector<Answer> answers;
            for (const int number : ShownNumbers()) {
                answers.push_back(page_.ask(culture, scope, key, number));
            }
            const State state = StateOf(culture, scope, key, answers);
            ++counts_[culture][scope][static_cast<std::size_t>(state)];
            const char letter = kStateLetters[static_cast<std::size_t>(state)];
            if (letters.find(letter) == std::string::npos) {
                letters += letter;
            }
            rows += std::string("<tr class=") + letter + "><th>" + Escaped(name) + "<td" +
                    Direction(name) + '>' + TextsHtml(answers);
        }
        return "<li data-s=\"" + Escaped(report_.scopes[scope]) + "\" data-t=" + letters + "><h3>" +
               Escaped(key) + " <small>" + Escaped(report_.scopes[scope]) + "</small></h3><table>" +
               rows + "</table></li>\n";
    }

    State StateOf(std::size_t culture, std::size_t scope, const std::string& key,
                  const std::vector<Answer>& answers) const {
        const lm_check::Request request{static_cast<std::uint16_t>(culture),
                                        static_cast<std::uint16_t>(scope)};
        const State state = states_.Of(request, key);
        const bool isGiven = std::all_of(answers.begin(), answers.end(),
                                         [](const Answer& answer) { return answer.isGiven; });
        if (isGiven || state == State::Missing) {
            return state;
        }
        return states_.LacksFile(request) ? State::Missing : State::Faulty;
    }

    void WriteHead() {
        output_ << "<!DOCTYPE html>\n<html lang=en>\n<head>\n<meta charset=utf-8>\n"
                   "<meta name=viewport content=\"width=device-width, initial-scale=1\">\n"
                   "<meta http-equiv=Content-Security-Policy content=\"default-src 'none'; "
                   "style-src 'unsafe-inline'; script-src 'nonce-page'\">\n"
                   "<meta name=generator content=\""
                << Escaped(page_.producer) << "\">\n<title>" << Escaped(page_.title)
                << "</title>\n<style>" << kPageStyle << "</style>\n</head>\n<body>\n<header>\n<h1>"
                << Escaped(page_.title) << "</h1>\n<p>" << keys_ << " keys in "
                << report_.scopes.size() << " scopes and " << report_.cultures.size()
                << " cultures, compared with <b>" << Escaped(report_.reference)
                << "</b></p>\n<ul class=totals>\n";
        Counts all{};
        for (const auto& scopes : counts_) {
            for (const Counts& counts : scopes) {
                Add(all, counts);
            }
        }
        for (std::size_t state = 0; state < kStates; ++state) {
            output_ << "<li class=" << kStateLetters[state] << "><b>" << all[state] << "</b> "
                    << kStateNames[state] << "</li>\n";
        }
        output_ << "</ul>\n<nav><a href=#overview>Overview</a> <a href=#findings>Findings</a> "
                   "<a href=#texts>Texts</a></nav>\n</header>\n<main>\n";
    }

    static void Add(Counts& sum, const Counts& counts) {
        for (std::size_t state = 0; state < kStates; ++state) {
            sum[state] += counts[state];
        }
    }

    void WriteOverview() {
        output_ << "<section id=overview aria-labelledby=overview-title><h2 id=overview-title>"
                   "Overview</h2>\n<div class=scroll><table class=matrix>\n<tr><td>";
        for (const std::string& scope : report_.scopes) {
            output_ << "<th scope=col><span>" << Escaped(scope) << "</span>";
        }
        output_ << "<th scope=col class=all><span>all</span>\n";
        for (std::size_t culture = 0; culture < report_.cultures.size(); ++culture) {
            output_ << "<tr><th scope=row>" << Escaped(report_.cultures[culture]);
            Counts all{};
            for (std::size_t scope = 0; scope < report_.scopes.size(); ++scope) {
                Add(all, counts_[culture][scope]);
                WriteCell(report_.cultures[culture], report_.scopes[scope],
                          counts_[culture][scope]);
            }
            WriteCell(report_.cultures[culture], "", all);
            output_ << '\n';
        }
        output_
            << "</table></div>\n<p class=hint>The number is the part that is done, in percent; "
               "the bar tells <span class=d>done</span>, <span class=s>stale</span>, "
               "<span class=m>missing</span> and <span class=f>faulty</span> texts. A cell leads "
               "to its texts.</p>\n</section>\n";
    }

    void WriteCell(const std::string& culture, const std::string& scope, const Counts& counts) {
        std::size_t sum = 0;
        std::string label = culture + (scope.empty() ? ", all scopes" : ", " + scope) + ':';
        for (std::size_t state = 0; state < kStates; ++state) {
            sum += counts[state];
            if (counts[state] != 0 || state == 0) {
                label += ' ' + std::to_string(counts[state]) + ' ' + kStateNames[state];
            }
        }
        if (sum == 0) {
            output_ << "<td>";
            return;
        }
        // Bounds between the states, in percent; what is there at all can be seen.
        std::array<std::size_t, kStates> bounds{};
        std::size_t done = 0;
        for (std::size_t state = 0; state + 1 < kStates; ++state) {
            done += counts[state];
            bounds[state] = done == sum ? 100 : std::min<std::size_t>(done * 100 / sum, 94);
        }
        output_ << "<td><a href=#texts data-c=\"" << Escaped(culture) << "\" data-s=\""
                << Escaped(scope) << "\" title=\"" << Escaped(label) << "\" aria-label=\""
                << Escaped(label) << "\" style=\"--a:" << bounds[0] << "%;--b:" << bounds[1]
                << "%;--c:" << bounds[2] << "%\">" << counts[0] * 100 / sum << "</a>";
    }

    void WriteFindings() {
        output_ << "<section id=findings aria-labelledby=findings-title><h2 id=findings-title>"
                   "Findings</h2>\n";
        if (report_.findings.empty()) {
            output_ << "<p class=hint>Nothing was found.</p>\n";
        }
        output_ << "<form class=filters data-for=findings></form>\n<noscript id=findings-data>"
                   "<ul class=findings>\n";
        for (const Finding& finding : report_.findings) {
            WriteFinding(finding);
        }
        output_ << "</ul></noscript>\n</section>\n";
    }

    void WriteFinding(const Finding& finding) {
        std::set<std::string> cultures;
        std::set<std::string> scopes;
        for (const lm_check::Request request : finding.requests) {
            cultures.insert(report_.cultures[request.culture]);
            scopes.insert(report_.scopes[request.scope]);
        }
        const bool isError = finding.severity == Severity::Error;
        output_ << "<li data-v=" << (isError ? "error" : "warning")
                << " data-r=" << InfoOf(finding.rule).name << " data-c=\" " << Joined(cultures)
                << "\" data-s=\" " << Joined(scopes) << "\"><h3><b>"
                << (isError ? "error" : "warning") << "</b> " << InfoOf(finding.rule).name
                << " <code>" << Escaped(finding.key) << "</code></h3><p>"
                << EscapedLines(finding.message) << "</p><p class=place>"
                << Escaped(page_.path(finding.location)) << ':' << finding.location.begin.line
                << ':' << finding.location.begin.column << "</p>";
        if (!finding.line.empty()) {
            const std::string_view line(finding.line);
            output_ << "<pre dir=ltr>" << Escaped(line.substr(0, finding.caret)) << "<mark></mark>"
                    << Escaped(line.substr(finding.caret)) << "</pre>";
        }
        if (!cultures.empty()) {
            output_ << "<p class=for>" << Joined(cultures) << "in " << Joined(scopes) << "</p>";
        }
        output_ << "</li>\n";
    }

    /// Each with a blank behind it.
    static std::string Joined(const std::set<std::string>& names) {
        std::string joined;
        for (const std::string& name : names) {
            joined += Escaped(name) + ' ';
        }
        return joined;
    }

    std::ostream& output_;
    const Page& page_;
    const lm_check::Report& report_;
    const States states_;
    std::vector<std::vector<Counts>> counts_;  // by culture and scope
    std::size_t keys_ = 0;
};

}  // namespace

void WritePage(std::ostream& output, const Page& page) {
    Writer(output, page).Write();
}

}  // namespace lm_report
