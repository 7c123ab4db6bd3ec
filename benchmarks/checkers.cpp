#include "checkers.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "Module.h"

namespace lm_bench {

namespace {

namespace fs = std::filesystem;

constexpr int kCultures = 40;  // the reference, a language, and its regions

/// What a program took.
struct Use {
    double processor;  // seconds
    double memory;     // bytes, at the most
};

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs a program that must find nothing wrong. Another process starts it: the peak of a program's
/// memory is not less than what its parent had.
Use Run(const std::string& program) {
    const std::string command =
        "exec " + fs::read_symlink("/proc/self/exe").string() + " --run " + program;
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
    std::array<char, 128> line{};
    Use use{};
    if (std::fgets(line.data(), line.size(), output.get()) == nullptr ||
        !(std::istringstream(line.data()) >> use.processor >> use.memory)) {
        throw std::runtime_error("failed: " + command);
    }
    return use;
}

Use RunCheck(const fs::path& tree) {
    const fs::path tool = fs::read_symlink("/proc/self/exe").parent_path() / "localize";
    return Run(tool.string() + " check --fail-on warning --root " + tree.string());
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

/// Writes the tree unless it is there.
/// @param cultures  how many; the regions have copies of the language's texts.
fs::path Tree(const Catalogues& catalogues, int cultures) {
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

void MeasureCheck(benchmark::State& state, const Catalogues& catalogues) {
    const fs::path tree = Tree(catalogues, 2);
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(RunCheck(tree).processor);
    }
}

void MeasureCheckOfMany(benchmark::State& state, const Catalogues& catalogues) {
    const fs::path tree = Tree(catalogues, kCultures);
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
        state.SetIterationTime(Run("msgfmt --check --output-file=/dev/null " + file).processor);
    }
}

int PrintUse(char** arguments) {
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, arguments[0], &silence, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&silence);
    int status = 0;
    rusage use{};
    if (failure != 0 || wait4(child, &status, 0, &use) != child || status != 0) {
        return 1;
    }
    std::cout << Seconds(use.ru_utime) + Seconds(use.ru_stime) << ' ' << use.ru_maxrss * 1024
              << '\n';
    return 0;
}

}  // namespace lm_bench
