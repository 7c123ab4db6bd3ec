#!/usr/bin/env python3
"""Turns the results of lm_bench into ratios: prints those with goals, writes performance.md and .svg.

    report.py DIRECTORY RESULTS.json...
"""
import datetime
import json
import os
import statistics
import sys
from pathlib import Path

SIZES = ("300", "30000", "300000")
MIDDLE = SIZES[1]
KINDS = {"plain": "plain text", "parameter": "one parameter", "plural": "plural with number"}
PEERS = ("gettext", "ICU", "ICU, patterns parsed before", "Boost.Locale")
MANY = "localize, 40 cultures"
WIDE = "Boost.Locale, wide texts"
# Orders of requests: each text once before any comes again, and a sequence that is asked over and over.
ORDERS = {"request": "each once", "repeated": "16,384 repeated"}
# The systems that make the final text, for each kind.
DONE = {"plain": ("gettext", "ICU", "Boost.Locale"), "parameter": ("gettext", "ICU"), "plural": ("gettext", "ICU")}
# What the time of a request with 30,000 messages may be, as a share of a peer's.
LIMITS = (("plain", "ICU", 0.45), ("parameter", "gettext", 0.3), ("parameter", "Boost.Locale", 0.6),
          ("plural", "gettext", 0.4), ("plural", "ICU", 0.1))


class Results:
    """Medians over all runs, by the name of the benchmark."""

    def __init__(self, paths):
        runs = {}
        for path in paths:
            for run in json.loads(path.read_text())["benchmarks"]:
                runs.setdefault(run["run_name"], []).append(run)
        self.runs = max(map(len, runs.values()))
        self.medians = {name: self.median(same) for name, same in runs.items()}

    @staticmethod
    def median(runs):
        return {key: value if isinstance(value, str) else statistics.median(run[key] for run in runs)
                for key, value in runs[0].items()}

    def time(self, *name):
        """Processor time, which other programs on the machine disturb least; None if not measured."""
        run = self.medians.get("/".join(name))
        nanoseconds = {"ns": 1, "us": 1e3, "ms": 1e6}
        return run and run["cpu_time"] * nanoseconds[run["time_unit"]]

    def request(self, kind, system, size=MIDDLE, order="request"):
        return self.time(order, kind, system, size)

    def growth(self, kind, system):
        return self.request(kind, system, SIZES[-1]) / self.request(kind, system, SIZES[0])

    def added(self, kind, system):
        return self.request(kind, system, SIZES[-1]) - self.request(kind, system, SIZES[0])

    def memory(self, system, counter):
        return self.medians[f"memory/{system}/{MIDDLE}/iterations:1"][counter]

    def check(self, program, field="real_time"):
        """Of the programs that judge catalogues: milliseconds, or a counter."""
        return self.medians[f"check/{program}/{MIDDLE}/manual_time"][field]

    def exchange(self, program):
        """Of the time of an export and an import."""
        times = [self.medians[f"exchange/{name}/{MIDDLE}/manual_time"]["real_time"]
                 for name in ("localize-po", program)]
        return times[0] / times[1]

    def check_share(self):
        """Of the time per message: the check judges the reference's messages, too."""
        return self.check("localize") / 2 / self.check("msgfmt")

    def speedup(self, system, size=MIDDLE):
        return self.medians[f"threads/{system}/{size}/min_time:0.500/real_time"]["speedup"]


def fastest(results, kind, peers, size=MIDDLE):
    return min((peer for peer in peers if results.request(kind, peer, size)),
               key=lambda peer: results.request(kind, peer, size))


def goals(results):
    """Rows of: what, the figure, the limit, whether the figure keeps it."""

    def at_most(what, figure, limit):
        return what, figure, f"≤ {limit:.2f}", figure <= limit

    rows = []
    for kind, text in KINDS.items():
        peer = fastest(results, kind, PEERS, SIZES[0])
        rows.append(at_most(f"300 messages: {text}, time against the fastest peer, {peer}",
                            against(results, kind, peer, SIZES[0]), 0.8))
    for order, description in ORDERS.items():
        rows += [at_most(f"30,000 messages, {description}: {KINDS[kind]}, time against {peer}",
                         against(results, kind, peer, MIDDLE, order), limit) for kind, peer, limit in LIMITS]
    for kind, text in KINDS.items():
        peer = fastest(results, kind, DONE[kind])
        rows.append(at_most(f"{text}, time added from 300 to 300,000 messages, against {peer}",
                            results.added(kind, "module") / results.added(kind, peer), 1))
    rows += [at_most(f"30,000 messages: {text}, host::Texts against the same by hand",
                     results.request(kind, "Texts") / results.request(kind, "by hand"), 1.3)
             for kind, text in KINDS.items()]
    start = results.time("start", "module", MIDDLE)
    rows.append(at_most(f"start from source, time against the load of {WIDE}",
                        start / results.time("start", WIDE, MIDDLE), 0.3))
    second = results.time("second", SIZES[-1]) - results.time("second", SIZES[0])
    rows.append(at_most("second localizer, growth of time with 300,000 common texts, in passes of reading them",
                        second / results.time("reading", SIZES[-1]), 1))
    rows.append(at_most("memory held, in sizes of the source file", results.memory("module", "held_per_file"), 3))
    rows.append(at_most("localize check, time per message against msgfmt --check",
                        results.check_share(), 1 / 3))
    rows.append(at_most("localize check of 40 cultures, memory, in sizes of the largest culture and the reference",
                        results.check(MANY, "peak_per_sources"), 3))
    rows.append(at_most("localize-po, export and import, time against libgettextpo's reading and writing",
                        results.exchange("libgettextpo"), 2))
    speedup = results.speedup("module")
    rows.append(("requests per second of two threads, against one", speedup, "≥ 1.90", speedup >= 1.9))
    return rows


def table(header, rows):
    lines = [header, ["---"] + ["---:"] * (len(header) - 1), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def ratio_text(ratio):
    return "" if ratio is None else f"{ratio:.2f}" if ratio < 10 else f"{ratio:.0f}"


def against(results, kind, peer, size, order="request"):
    time = results.request(kind, peer, size, order)
    return time and results.request(kind, "module", size, order) / time


def markdown(results):
    cpu = next(line.split(":")[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
               if line.startswith("model name"))
    goal_rows = [[what, ratio_text(figure), limit, "met" if met else "**not met**"]
                 for what, figure, limit, met in goals(results)]
    request_rows = [[f"{text}, {peer}"] + [ratio_text(against(results, kind, peer, size)) for size in SIZES] +
                    [ratio_text(against(results, kind, peer, MIDDLE, "repeated"))]
                    for kind, text in KINDS.items() for peer in (*PEERS, "floor") if results.request(kind, peer)]
    start = results.time("start", "module", MIDDLE)
    start_rows = [[system, ratio_text(start / results.time("start", system, MIDDLE))] for system in (WIDE, "Boost.Locale")]
    growth_rows = [[system] + [ratio_text(results.growth(kind, system)) for kind in KINDS]
                   for system in ("module", "gettext", "ICU", "Boost.Locale")]
    stage_rows = [[stage, f"{results.medians[f'stage/{stage}/{MIDDLE}']['bytes_per_second'] / 1e6:,.0f}"]
                  for stage in ("reading and decoding", "parsing", "compiling")]
    second_rows = [[f"{int(size):,}", ratio_text(results.time("second", size) / results.time("reading", SIZES[-1]))]
                   for size in SIZES]
    memory_rows = [[system, f"{results.memory(system, 'held_per_message'):,.0f}"] +
                   [ratio_text(results.memory(system, counter)) for counter in ("held_per_file", "peak_per_file")]
                   for system in ("module", "gettext", "ICU", "Boost.Locale", WIDE)]
    thread_rows = [[system] + [ratio_text(results.speedup(system, size)) for size in SIZES[:2]]
                   for system in ("module", "gettext", "ICU", "Boost.Locale")]
    return f"""# Performance

What a host waits for, beside the systems that it would use instead. `scripts/bench` measures all of it by one
program and writes this page. Times do not carry over between machines, so most figures are ratios;
below 1 the module is faster. Goals are what the module is meant to keep; one that is not met is work to do.

Measured on {datetime.date.today()}, {cpu}, {os.cpu_count()} cores.

![The module's time as a share of each peer's](performance.svg)

## Goals

{table(["measure", "figure", "goal", ""], goal_rows)}

## Requests: the module's time as a share of a peer's

{table(["text, peer"] + [f"{int(size):,} messages" for size in SIZES] + ["30,000, repeated"], request_rows)}

Boost.Locale translates only; the others put the parameter or the number in. The floor is what no system of this
kind can go below: a hash of the key, one probe of a table, one copy of a text; it knows neither letter case nor
parameters.

## Growth: time with 300,000 messages over time with 300

{table(["system", *KINDS.values()], growth_rows)}

## Start from source text, 30,000 messages: the module's time as a share

{table(["against the load of", "share"], start_rows)}

Boost.Locale with narrow texts reads its compiled file and uses it as it lies; gettext and ICU map theirs and read
it at requests. No parser of source text is as fast as that.

## Stages of the start, 30,000 messages

{table(["stage", "MB of source per second"], stage_rows)}

## A second localizer of a culture, in passes of reading 300,000 common texts

{table(["common texts", "time"], second_rows)}

## Memory, 30,000 messages

{table(["system", "bytes held per message", "held, in sizes of its file", "peak of the start, in sizes of its file"],
       memory_rows)}

## Two threads over one: requests per second, all kinds of texts

{table(["system", *(f"{int(size):,} messages" for size in SIZES[:2])], thread_rows)}

With 300 messages all texts lie in the cache; more than twice as much comes from two caches instead of one.

## Judging catalogues

`localize check` takes {ratio_text(results.check_share())} of the time of `msgfmt --check` per message. A tree of 40
cultures with 30,000 messages each takes {results.check(MANY) / 1000:.1f} s of processor time, on as many cores as there
are, and {ratio_text(results.check(MANY, "peak_per_sources"))} times as much memory as the sources of its largest culture
and the reference together.

## To translators and back

`localize-po` exports and imports 30,000 messages in {ratio_text(results.exchange("libgettextpo"))} times what gettext's
library, which it uses, takes to read and write the same file, and in
{ratio_text(results.exchange("msgmerge and msgfmt"))} times what `msgmerge` and `msgfmt` together take with it.

## Method

- Workload: Russian texts, made by `benchmarks/Workload.cpp`; a third plain, a third with one parameter, a third
  with a plural of three forms and its number. Keys are asked for in random order, each once before any comes
  again; "repeated" is another order, 16,384 keys of a kind drawn at random and asked over and over. Parameters and
  numbers vary.
- Every system answers the whole sequence of requests first, and each answer is compared with the text that the
  workload expects; one wrong answer ends the run. A caller keeps a copy of each text in the type that it would
  use: `string16_t` for the module, `std::string` for gettext (after `snprintf`) and Boost.Locale,
  `icu::UnicodeString` for ICU (`ResourceBundle`, `MessageFormat`).
- The module is loaded and asked through its exported interface. Only the stages are taken out of its layers.
- Start: from the creation of a manager to the first text, file in the page cache; for Boost.Locale from the
  generator to the first text. Its narrow texts stay in the compiled file as it was read; wide texts are converted
  when it is loaded, as UTF-16 has to be.
- A pass of reading: reads the common file from the page cache and looks at each byte once.
- Memory: resident memory of a fresh process, mapped files included. Peak: from the start to the first answer.
  Held: after every text was asked for once, and free heap was returned.
- Each size of catalogues has a process of its own: gettext searches all texts that a process has used.
- Growth is time added from 300 to 300,000 messages, of the module and of the peer that is fastest at 30,000.
- Judging: the programs as they are run by hand, processor time of the whole process. `msgfmt` reads 30,000 messages
  with their translations; `localize` the same texts as two cultures of 30,000 messages, and judges both.
- To translators and back: the programs as they are run by hand, processor time of the whole processes; the library's
  in a program that does nothing else. The import finds nothing changed. `msgmerge` merges the file with itself.
- Threads: one, then two, in turn, time on the clock, each thread from a place of its own in the sequence.
- Figures are medians of {results.runs} runs, each a process of its own, since where a process's memory lies makes
  more of a difference than most else; a run measures everything once, in random order. Times are processor time
  but for those of threads.

## Repeat it

```sh
scripts/bench
```
"""


def svg(results):
    """Bars as long as the module's time is a share of the peer's."""
    bars = [(f"{text}, {peer}", against(results, kind, peer, MIDDLE))
            for kind, text in KINDS.items() for peer in PEERS if results.request(kind, peer)]
    bars += [(f"start, {system}", results.time("start", "module", MIDDLE) / results.time("start", system, MIDDLE))
             for system in (WIDE, "Boost.Locale")]
    left, unit, row, longest = 330, 160, 24, 2.0
    height = 56 + row * len(bars)
    parts = []
    for i, (label, ratio) in enumerate(bars):
        y = 48 + row * i
        length = unit * min(ratio, longest)
        more = " →" if ratio > longest else ""
        parts.append(f'<text x="{left - 10}" y="{y + 12}" text-anchor="end">{label}</text>'
                     f'<rect class="{"slow" if ratio > 1 else "fast"}" x="{left}" y="{y}" width="{length:.1f}" '
                     f'height="16" rx="2"/><text x="{left + length + 6:.1f}" y="{y + 12}">'
                     f'{ratio_text(ratio)}{more}</text>')
    return f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 730 {height}" font-family="sans-serif" font-size="13">
<style>
text {{ fill: #24292f }} .fast {{ fill: #2f81b7 }} .slow {{ fill: #c9712b }} line {{ stroke: #57606a }}
@media (prefers-color-scheme: dark) {{ text {{ fill: #e6edf3 }} line {{ stroke: #9ea7b3 }} }}
</style>
<text x="10" y="20" font-weight="bold">The module's time as a share of the peer's, 30,000 messages (shorter is faster)</text>
<text x="{left + unit}" y="40" text-anchor="middle">1 = the peer</text>
{chr(10).join(parts)}
<line x1="{left + unit}" x2="{left + unit}" y1="44" y2="{height - 8}" stroke-dasharray="3 3"/>
</svg>
"""


def main():
    directory = Path(sys.argv[1])
    results = Results([Path(name) for name in sys.argv[2:]])
    rows = goals(results)
    width = max(len(row[0]) for row in rows)
    for what, figure, limit, met in rows:
        print(f"{what:<{width}}  {ratio_text(figure):>6}  {limit:>8}  {'met' if met else 'NOT MET'}")
    (directory / "performance.md").write_text(markdown(results))
    (directory / "performance.svg").write_text(svg(results))


main()
