// The programs that judge catalogues, gettext's and ours, over the same messages.
#pragma once

#include <benchmark/benchmark.h>

#include "Catalogues.h"

namespace lm_bench {

/// `localize check` over a reference and one translation.
void MeasureCheck(benchmark::State& state, const Catalogues& catalogues);

/// The same over 40 cultures, with the memory that it takes.
void MeasureCheckOfMany(benchmark::State& state, const Catalogues& catalogues);

/// `msgfmt --check` over the same translation.
void MeasureMsgfmt(benchmark::State& state, const Catalogues& catalogues);

/// Runs a program, and prints the seconds of the processor, and the bytes, that it took.
/// @param arguments  the program and what it is given, with a null pointer behind.
/// @return zero when the program found nothing wrong.
int PrintUse(char** arguments);

}  // namespace lm_bench
