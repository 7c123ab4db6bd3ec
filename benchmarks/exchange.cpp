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
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(
            RunProgram(Tool("lm_bench_gettextpo") + ' ' + file + ' ' + file + ".copy").processor);
    }
}

void MeasureMsgmerge(benchmark::State& state, const Catalogues& catalogues) {
    const std::string file = PoFile(catalogues);
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(
            RunProgram("msgmerge --quiet --output-file=" + file + ".merged " + file + ' ' + file)
                .processor +
            RunProgram("msgfmt --output-file=" + file + ".mo " + file).processor);
    }
}

}  // namespace lm_bench
