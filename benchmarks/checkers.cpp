#include "checkers.h"

#include <string>
#include <vector>

#include "Module.h"
#include "programs.h"

namespace lm_bench {

namespace {

namespace fs = std::filesystem;

constexpr int kCultures = 40;  // the reference, a language, and its regions

Use RunCheck(const fs::path& tree) {
    return RunProgram(Tool("localize") + " check --fail-on warning --root " + tree.string());
}

/// The texts of a message in the language that it is translated from, with a sign for the gap.
std::vector<std::string> Originals(const Message& message, const std::string& gap) {
    switch (message.kind) {
        case Kind::Plain:
            return {message.key + '.'};
        case Kind::Parameter:
            return {message.key + " of " + gap + '.'};
        case Kind::Plural:
            return {message.key + ", " + gap + " time.", message.key + ", " + gap + " times."};
    }
    return {};
}

std::string ReferenceSource(const Workload& workload) {
    std::string source;
    for (const Message& message : workload.Messages()) {
        const bool isPlural = message.kind == Kind::Plural;
        const auto texts =
            Originals(message, std::string("' + $") + (isPlural ? "count" : "name") + " + '");
        source += message.key + " = ";
        source += isPlural ? "{$count: '" + texts[0] + "', '" + texts[1] + "'}\n"
                           : '\'' + texts[0] + "'\n";
    }
    return source;
}

std::string PoEntry(const Message& message) {
    const std::string gap = message.kind == Kind::Plural ? "%d" : "%s";
    const auto originals = Originals(message, gap);
    std::string entry = message.kind == Kind::Plain ? "\n" : "\n#, c-format\n";
    entry += "msgid \"" + originals[0] + "\"\n";
    if (message.kind == Kind::Plural) {
        entry += "msgid_plural \"" + originals[1] + "\"\n";
    }
    for (std::size_t i = 0; i < message.forms.size(); ++i) {
        const Pattern& form = message.forms[i];
        entry +=
            message.kind == Kind::Plural ? "msgstr[" + std::to_string(i) + "] \"" : "msgstr \"";
        entry += form.before + (message.kind == Kind::Plain ? "" : gap) + form.after + "\"\n";
    }
    return entry;
}

/// Writes the catalogue unless it is there.
fs::path PoFile(const Catalogues& catalogues) {
    fs::path file = catalogues.directory() / "checked.po";
    if (!exists(file)) {
        std::string source =
            "msgid \"\"\nmsgstr \"\"\n\"Project-Id-Version: 1\\n\"\n"
            "\"PO-Revision-Date: 2000-01-01 00:00+0000\\n\"\n\"Last-Translator: A <a@b.c>\\n\"\n"
            "\"Language-Team: none\\n\"\n\"Language: ru\\n\"\n\"MIME-Version: 1.0\\n\"\n"
            "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
            "\"Content-Transfer-Encoding: 8bit\\n\"\n"
            "\"Plural-Forms: nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && "
            "(n%100<10 || n%100>20) ? 1 : 2);\\n\"\n";
        for (const Message& message : catalogues.workload().Messages()) {
            source += PoEntry(message);
        }
        WriteFile(file, source);
    }
    return file;
}

}  // namespace

fs::path CheckedTree(const Catalogues& catalogues, int cultures) {
    fs::path tree = catalogues.directory() / ("checked-" + std::to_string(cultures));
    if (exists(tree)) {
        return tree;
    }
    WriteScope(tree, "main", catalogues.workload());
    WriteFile(tree / "ru/Locs/common.lt", "");
    for (int region = 2; region < cultures; ++region) {
        fs::copy(tree / "ru", tree / ("ru-r" + std::to_string(region)),
                 fs::copy_options::recursive);
    }
    WriteFile(tree / "en/Locs/main.lt", ReferenceSource(catalogues.workload()));
    WriteFile(tree / "en/Locs/common.lt", "");
    return tree;
}

void MeasureCheck(benchmark::State& state, const Catalogues& catalogues) {
    const fs::path tree = CheckedTree(catalogues, 2);
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(RunCheck(tree).processor);
    }
}

void MeasureCheckOfMany(benchmark::State& state, const Catalogues& catalogues) {
    const fs::path tree = CheckedTree(catalogues, kCultures);
    Use use{};
    for ([[maybe_unused]] auto _ : state) {
        use = RunCheck(tree);
        state.SetIterationTime(use.processor);
    }
    const auto sources = static_cast<double>(file_size(tree / "ru/Locs/main.lt") +
                                             file_size(tree / "en/Locs/main.lt"));
    state.counters["peak_per_sources"] = use.memory / sources;
}

void MeasureMsgfmt(benchmark::State& state, const Catalogues& catalogues) {
    const std::string file = PoFile(catalogues).string();
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(
            RunProgram("msgfmt --check --output-file=/dev/null " + file).processor);
    }
}

}  // namespace lm_bench
