// The programs that judge catalogues, gettext's and ours, over the same messages.
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

#include "Catalogues.h"

namespace lm_bench {

/// The workload as texts in Russian, of a reference in English; written unless it is there.
/// @param cultures  how many; further ones are regions with copies of the language's texts.
std::filesystem::path CheckedTree(const Catalogues& catalogues, int cultures);

/// `localize check` over a reference and one translation.
void MeasureCheck(benchmark::State& state, const Catalogues& catalogues);

/// The same over 40 cultures, with the memory that it takes.
void MeasureCheckOfMany(benchmark::State& state, const Catalogues& catalogues);

/// `msgfmt --check` over the same translation.
void MeasureMsgfmt(benchmark::State& state, const Catalogues& catalogues);

}  // namespace lm_bench
