#include "stages.h"

#include <benchmark/benchmark.h>

#include <boost/make_shared.hpp>

#include "FileContent.h"
#include "LocFileParser.h"
#include "ResourceCompiler.h"
#include "RootExpressionProvider.h"
#include "SourceIterator.h"

namespace lm_bench {

namespace {

namespace engine = LocalizationManager::StringLocalizing;
using Dictionary = boost::shared_ptr<engine::Model::ResourceDictionary>;

Dictionary Parse(const std::u16string& text) {
    auto dictionary = boost::make_shared<engine::Model::ResourceDictionary>();
    const auto range = engine::Parsing::MakeSourceRange(text, u"main.lt");
    engine::Parsing::ParseResourceDictionary(range.first, range.last, *dictionary);
    return dictionary;
}

void CountBytes(benchmark::State& state, const std::filesystem::path& file) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file_size(file)));
}

}  // namespace

void MeasureDecoding(benchmark::State& state, const std::filesystem::path& file) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(LocalizationManager::File::GetFileContent(file.u16string()));
    }
    CountBytes(state, file);
}

void MeasureParsing(benchmark::State& state, const std::filesystem::path& file) {
    const std::u16string text = LocalizationManager::File::GetFileContent(file.u16string());
    for ([[maybe_unused]] auto _ : state) {
        const Dictionary dictionary = Parse(text);
        state.PauseTiming();  // while the dictionary goes
        *dictionary = {};
        state.ResumeTiming();
    }
    CountBytes(state, file);
}

void MeasureCompiling(benchmark::State& state, const std::filesystem::path& file) {
    const std::u16string text = LocalizationManager::File::GetFileContent(file.u16string());
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        Dictionary dictionary = Parse(text);
        engine::Compiling::ResourceCompiler compiler(
            boost::make_shared<engine::Compiling::RootExpressionProvider>());
        state.ResumeTiming();
        compiler.Compile(dictionary);
        state.PauseTiming();
        *dictionary = {};
        state.ResumeTiming();
    }
    CountBytes(state, file);
}

}  // namespace lm_bench
