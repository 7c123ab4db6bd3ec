#include "exchange.h"

#include <filesystem>
#include <string>

#include "checkers.h"
#include "programs.h"

namespace lm_bench {

namespace {

namespace fs = std::filesystem;

std::string Command(const Catalogues& catalogues, const char* command, const fs::path& file) {
    return Tool("localize-po") + ' ' + command + " --root " + CheckedTree(catalogues, 2).string() +
           " --culture ru --scope main " + file.string();
}

fs::path ExchangedFile(const Catalogues& catalogues) {
    return catalogues.directory() / "exchanged.po";
}

/// Written unless it is there.
std::string PoFile(const Catalogues& catalogues) {
    const fs::path file = ExchangedFile(catalogues);
    if (!exists(file)) {
        RunProgram(Command(catalogues, "export", file));
    }
    return file.string();
}

}  // namespace

void MeasureExchange(benchmark::State& state, const Catalogues& catalogues) {
    const fs::path file = ExchangedFile(catalogues);
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(RunProgram(Command(catalogues, "export", file)).processor +
                               RunProgram(Command(catalogues, "import", file)).processor);
    }
}

void MeasureGettextPo(benchmark::State& state, const Catalogues& catalogues) {
    const std::string file = PoFile(catalogues);
    std::string command = Tool("lm_bench_gettextpo");
    command.append(1, ' ').append(file).append(1, ' ').append(file).append(".copy");
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(RunProgram(command).processor);
    }
}

void MeasureMsgmerge(benchmark::State& state, const Catalogues& catalogues) {
    const std::string file = PoFile(catalogues);
    std::string merge = "msgmerge --quiet --output-file=/dev/null ";
    merge.append(file).append(1, ' ').append(file);
    const std::string compile = "msgfmt --output-file=/dev/null " + file;
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(RunProgram(merge).processor + RunProgram(compile).processor);
    }
}

}  // namespace lm_bench
