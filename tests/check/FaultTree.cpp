#include "FaultTree.h"

#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "FromUtf8.h"
#include "check/accept.h"
#include "check/check.h"
#include "localization_manager/host/text.h"

namespace lm_test {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteFile(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

namespace {

void ReplaceFirst(std::string& text, const std::string& old, const std::string& with) {
    const std::size_t at = text.find(old);
    ASSERT_NE(at, std::string::npos) << old;
    text.replace(at, old.size(), with);
}

/// The texts between bars. U+2400 to U+241F stand for the control characters that they show.
std::vector<std::string> TextsOf(std::string line) {
    std::vector<std::string> texts;
    bool isInside = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line.compare(i, 2, "\\|") == 0) {
            texts.back() += line[++i];
        } else if (line[i] == '|') {
            isInside = !isInside;
            if (isInside) {
                texts.emplace_back();
            }
        } else if (isInside && line.compare(i, 2, "\xE2\x90") == 0 &&
                   static_cast<unsigned char>(line[i + 2]) < 0xA0) {
            texts.back() += static_cast<char>(line[i + 2] - '\x80');
            i += 2;
        } else if (isInside) {
            texts.back() += line[i];
        }
    }
    return texts;
}

std::string Repeated(const std::string& text, std::size_t count) {
    std::string repeated;
    for (std::size_t i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

std::string InOtherEncoding(const std::string& utf8, bool isUtf16) {
    std::string bytes = isUtf16 ? "\xFF\xFE" : "";
    for (const char16_t unit : LocalizationManager::Text::FromUtf8(utf8)) {
        bytes += isUtf16 || unit <= 0xFF ? static_cast<char>(unit & 0xFFU) : '?';
        if (isUtf16) {
            bytes += static_cast<char>(unit >> 8U);
        }
    }
    return bytes;
}

}  // namespace

std::vector<FaultCase> ReadFaultCases(const std::string& file) {
    std::vector<FaultCase> cases;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        if (line.compare(0, 3, "== ") == 0) {
            cases.push_back({line.substr(3), {}, {}});
        } else if (line.compare(0, 2, "> ") == 0) {
            cases.back().findings.push_back(line.substr(2));
        } else {
            cases.back().steps.push_back(line);
        }
    }
    return cases;
}

FaultTree::FaultTree(const std::vector<std::string>& steps) {
    fs::copy(SAMPLES "/tree", Root(), fs::copy_options::recursive);
    for (const std::string& step : steps) {
        Do(step);
    }
}

void FaultTree::Do(const std::string& step) {
    std::istringstream words(step);
    std::string command;
    std::string file;
    words >> command;
    std::string rest = words.str().substr(std::min(step.size(), command.size() + 1));
    if (command == "param" || command == "enable" || command == "disable" || command == "culture") {
        Option(command, rest);
    } else if (command == "accept") {
        Accept();
    } else {
        words >> file;
        rest.erase(0, std::min(rest.size(), file.size() + 1));
        Change(command, file, rest);
    }
}

void FaultTree::Change(const std::string& command, const std::string& file,
                       const std::string& rest) {
    const fs::path path = Root() / file;
    std::string text = fs::is_directory(path) ? std::string() : ReadFile(path);
    const std::vector<std::string> texts = TextsOf(rest);
    std::istringstream words(rest);
    std::string word;
    std::size_t number = 0;
    if (command == "remove") {
        fs::remove(path);
        return;
    }
    if (command == "rename") {
        fs::rename(path, Root() / rest);
        return;
    }
    if (command == "copy") {
        fs::create_directories((Root() / rest).parent_path());
        fs::copy(path, Root() / rest, fs::copy_options::recursive);
        return;
    }
    if (command == "replace") {
        ReplaceFirst(text, texts.at(0), texts.at(1));
    } else if (command == "append") {
        text += texts.at(0);
    } else if (command == "write") {
        text = texts.at(0);
    } else if (command == "utf16" || command == "latin1") {
        text = InOtherEncoding(text, command == "utf16");
    } else if (command == "byte") {
        words >> word >> std::hex >> number;
        ReplaceFirst(text, word, std::string(1, static_cast<char>(number)));
    } else if (command == "nest") {
        words >> word >> number;
        ReplaceFirst(text, word, Repeated("{$n:", number) + "'x'" + Repeated("}", number));
    } else if (command == "long") {
        words >> word >> number;
        ReplaceFirst(text, word, Repeated("x", number));
    } else {
        ADD_FAILURE() << "unknown step " << command;
    }
    WriteFile(path, text);
}

void FaultTree::Option(const std::string& command, const std::string& values) {
    std::istringstream words(values);
    for (std::string word; words >> word;) {
        if (command == "param") {
            options_.params.insert(word);
        } else if (command == "culture") {
            options_.cultures.push_back(word);
        } else {
            options_.switches[*lm_check::RuleOfName(word)] = command == "enable";
        }
    }
}

void FaultTree::Accept() {
    const lm_tree::Tree tree(Root(), {});
    lm_check::Accept(tree, {}, {}, lock_);
    // As it is written and read again.
    lock_ = lm_check::TranslationLock(lock_.Text());
}

lm_check::Report FaultTree::Check() const {
    return lm_check::Check(lm_tree::Tree(Root(), {}), options_, lock_);
}

std::vector<std::string> LinesOf(const lm_check::Report& report) {
    std::vector<std::string> lines;
    for (const lm_check::Finding& finding : report.findings) {
        const lm_check::Location& at = finding.location;
        std::string line =
            at.path + ':' + std::to_string(at.begin.line) + ':' + std::to_string(at.begin.column) +
            (finding.severity == lm_check::Severity::Error ? " error " : " warning ") +
            lm_check::InfoOf(finding.rule).name;
        line += finding.key.empty() ? "" : ' ' + finding.key;
        for (const lm_check::Request request : finding.requests) {
            line += ' ' + report.cultures[request.culture] + '/' + report.scopes[request.scope];
        }
        lines.push_back(line);
    }
    return lines;
}

}  // namespace lm_test
