// Measures what hosts wait for, beside the systems that they would use instead. An answer that is
// not the expected text ends the program. One size of catalogues per process, since gettext searches
// the texts of all catalogues that the process has used.
//
//     lm_bench MESSAGES [options of Google Benchmark]
#include <benchmark/benchmark.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <numeric>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Catalogues.h"
#include "Module.h"
#include "memory.h"
#include "stages.h"

namespace {

using namespace lm_bench;

constexpr const SystemType* kTypes[] = {&kModule, &kGettext, &kIcu, &kBoostLocale};
constexpr const char* kKindNames[] = {"plain", "parameter", "plural"};

/// Asks on and on; the next run goes on where the last one ended.
void AskAll(benchmark::State& state, System& system, const std::vector<Request>& requests,
            std::size_t& next) {
    for ([[maybe_unused]] auto _ : state) {
        const Request& request = requests[next];
        next = next + 1 == requests.size() ? 0 : next + 1;
        requests[next].Prefetch();
        system.Answer(request);
    }
    state.SetItemsProcessed(state.iterations());
}

std::string Name(std::initializer_list<std::string> parts) {
    return std::accumulate(parts.begin() + 1, parts.end(), *parts.begin(),
                           [](const auto& all, const auto& part) { return all + '/' + part; });
}

void RegisterRequests(Catalogues& catalogues, const SystemType& type, Kind kind, std::size_t size) {
    const std::string name = Name(
        {"request", kKindNames[static_cast<std::size_t>(kind)], type.name, std::to_string(size)});
    benchmark::RegisterBenchmark(name.c_str(), [&catalogues, &type, kind, size,
                                                next = std::size_t{0}](auto& state) mutable {
        AskAll(state, catalogues.Opened(type, size), catalogues.WorkloadOf(size).Of(kind), next);
    });
}

/// Requests of all kinds; each thread begins at a place of its own.
void RegisterThreads(Catalogues& catalogues, const SystemType& type, std::size_t size) {
    for (const int threads : {1, 2}) {
        benchmark::RegisterBenchmark(
            Name({"threads", type.name, std::to_string(size)}).c_str(),
            [&catalogues, &type, size](benchmark::State& state) {
                const std::vector<Request>& requests = catalogues.WorkloadOf(size).All();
                std::size_t next =
                    requests.size() / 2 * static_cast<std::size_t>(state.thread_index());
                AskAll(state, catalogues.Opened(type, size), requests, next);
            })
            ->Threads(threads)
            ->MinTime(0.5)
            ->UseRealTime();
    }
}

void RegisterStart(Catalogues& catalogues, const SystemType& type, std::size_t size) {
    benchmark::RegisterBenchmark(
        Name({"start", type.name, std::to_string(size)}).c_str(),
        [&, size](auto& state) {
            catalogues.File(type, size);
            const Request& request = catalogues.WorkloadOf(size).All().front();
            type.open(catalogues.Directory(), size)->AnswerRightly(request);
            for ([[maybe_unused]] auto _ : state) {
                auto system = type.open(catalogues.Directory(), size);
                system->Answer(request);
                state.PauseTiming();
                system.reset();
                state.ResumeTiming();
            }
        })
        ->Unit(benchmark::kMillisecond);
}

void RegisterStage(Catalogues& catalogues, const char* stage, std::size_t size,
                   void (*measure)(benchmark::State&, const std::filesystem::path&)) {
    benchmark::RegisterBenchmark(
        Name({"stage", stage, std::to_string(size)}).c_str(),
        [=, &catalogues](auto& state) { measure(state, catalogues.File(kModule, size)); })
        ->Unit(benchmark::kMillisecond);
}

/// A further localizer of the culture, with a small scope, beside a first one that stays.
class SecondLocalizer {
public:
    SecondLocalizer(Catalogues& catalogues, std::size_t size) : small_(10) {
        const auto tree = catalogues.Directory() / ("common" + std::to_string(size));
        WriteScope(tree, "common", catalogues.WorkloadOf(size));
        WriteScope(tree, "small", small_);
        manager_ = OpenManager(tree);
        first_ = std::make_unique<Module>(*manager_, u"small");
        first_->AnswerRightly(catalogues.WorkloadOf(size).All().front());
        Module(*manager_, u"small").AnswerRightly(small_.All().front());
    }

    void Measure(benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state) {
            Module(*manager_, u"small").Answer(small_.All().front());
        }
    }

private:
    Workload small_;
    qor::objptr_t<localization_manager::ILocalizationManager> manager_;
    std::unique_ptr<Module> first_;
};

void RegisterSecondLocalizer(Catalogues& catalogues, std::size_t size) {
    const auto measure = [&catalogues, size, second = std::shared_ptr<SecondLocalizer>()](
                             benchmark::State& state) mutable {
        if (!second) {
            second = std::make_shared<SecondLocalizer>(catalogues, size);
        }
        second->Measure(state);
    };
    benchmark::RegisterBenchmark(Name({"second", std::to_string(size)}).c_str(), measure)
        ->Unit(benchmark::kMicrosecond);
}

/// What the second localizer is held against: to read the common texts once, byte by byte.
void RegisterReadingPass(Catalogues& catalogues, std::size_t size) {
    benchmark::RegisterBenchmark(Name({"reading", std::to_string(size)}).c_str(), [&catalogues,
                                                                                   size](
                                                                                      auto& state) {
        const std::filesystem::path file = catalogues.File(kModule, size);
        std::string bytes(file_size(file), ' ');
        for ([[maybe_unused]] auto _ : state) {
            std::ifstream(file, std::ios::binary)
                .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
            benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), 0U));
        }
    })->Unit(benchmark::kMicrosecond);
}

/// Measured by this program, run once more.
void RegisterMemory(Catalogues& catalogues, const SystemType& type, std::size_t size) {
    const std::string name = Name({"memory", type.name, std::to_string(size)});
    benchmark::RegisterBenchmark(
        name.c_str(),
        [&, size](benchmark::State& state) {
            const auto file = static_cast<double>(file_size(catalogues.File(type, size)));
            const auto self = std::filesystem::read_symlink("/proc/self/exe");
            const std::string command = "exec " + self.string() + " --memory '" +
                                        std::string(type.name) + "' " + std::to_string(size) + ' ' +
                                        catalogues.Directory().string();
            std::size_t held = 0;
            std::size_t peak = 0;
            for ([[maybe_unused]] auto _ : state) {
                const std::unique_ptr<FILE, int (*)(FILE*)> child(popen(command.c_str(), "r"),
                                                                  pclose);
                std::array<char, 64> line{};
                if (std::fgets(line.data(), line.size(), child.get()) == nullptr ||
                    !(std::istringstream(line.data()) >> held >> peak)) {
                    throw std::runtime_error("failed: " + command);
                }
            }
            state.counters["held_per_message"] =
                static_cast<double>(held) / static_cast<double>(size);
            state.counters["held_per_file"] = static_cast<double>(held) / file;
            state.counters["peak_per_file"] = static_cast<double>(peak) / file;
        })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

void RegisterAll(Catalogues& catalogues, std::size_t size) {
    constexpr std::size_t kMostParsed = 30000;  // patterns of more would take gigabytes
    for (const Kind kind : {Kind::Plain, Kind::Parameter, Kind::Plural}) {
        for (const SystemType* type : kTypes) {
            RegisterRequests(catalogues, *type, kind, size);
        }
        if (kind != Kind::Plain && size <= kMostParsed) {
            RegisterRequests(catalogues, kIcuParsed, kind, size);
        }
    }
    RegisterSecondLocalizer(catalogues, size);
    RegisterReadingPass(catalogues, size);
    // The others keep what they loaded until the process ends, so only these start more than once.
    for (const SystemType* type : {&kModule, &kBoostLocale, &kBoostLocaleWide}) {
        RegisterStart(catalogues, *type, size);
    }
    RegisterStage(catalogues, "reading and decoding", size, MeasureDecoding);
    RegisterStage(catalogues, "parsing", size, MeasureParsing);
    RegisterStage(catalogues, "compiling", size, MeasureCompiling);
    for (const SystemType* type : kTypes) {
        RegisterMemory(catalogues, *type, size);
        RegisterThreads(catalogues, *type, size);
    }
    RegisterMemory(catalogues, kBoostLocaleWide, size);
}

int MeasureMemory(const std::string& name, const std::string& size, const std::string& directory) {
    for (const SystemType* type : {&kModule, &kGettext, &kIcu, &kBoostLocale, &kBoostLocaleWide}) {
        if (name == type->name) {
            const MemoryUse use = MeasureMemory(*type, directory, std::stoul(size));
            std::cout << use.held << ' ' << use.peak << '\n';
            return 0;
        }
    }
    return 2;
}

}  // namespace

int main(int argc, char** argv) try {
    // In the locale "C", gettext would not look for Russian texts.
    if (setenv("LANGUAGE", "ru", 1) != 0 || std::setlocale(LC_ALL, "en_US.UTF-8") == nullptr) {
        throw std::runtime_error("there is no locale en_US.UTF-8");
    }
    if (argc == 5 && argv[1] == std::string("--memory")) {
        return MeasureMemory(argv[2], argv[3], argv[4]);
    }
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        throw std::runtime_error("say how many messages");
    }
    const auto files = std::filesystem::absolute("lm_bench_files");  // of an earlier version, too
    std::filesystem::remove_all(files);
    Catalogues catalogues(files);
    RegisterAll(catalogues, std::stoul(argv[1]));
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(files);
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "lm_bench: " << failure.what() << '\n';
    return 1;
}
