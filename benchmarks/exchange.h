// Texts on their way to translators and back, beside gettext's library and programs over the same files.
#pragma once

#include <benchmark/benchmark.h>

#include "Catalogues.h"

namespace lm_bench {

/// `localize-po export` of a translation into a PO file, and `localize-po import` of that file.
void MeasureExchange(benchmark::State& state, const Catalogues& catalogues);

/// gettext's own library reads that file and writes it.
void MeasureGettextPo(benchmark::State& state, const Catalogues& catalogues);

/// `msgmerge` of that file with itself, and `msgfmt` of it.
void MeasureMsgmerge(benchmark::State& state, const Catalogues& catalogues);

}  // namespace lm_bench
