// The stages of the module's start, each by itself, out of the engine's layers.
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

namespace lm_bench {

void MeasureDecoding(benchmark::State& state, const std::filesystem::path& file);
void MeasureParsing(benchmark::State& state, const std::filesystem::path& file);
void MeasureCompiling(benchmark::State& state, const std::filesystem::path& file);

}  // namespace lm_bench
