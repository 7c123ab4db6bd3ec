// Measures what hosts wait for, beside the systems that they would use instead. An answer that is
// not the expected text ends the program. One size of catalogues per process, since gettext searches
// the texts of all catalogues that the process has used.
//
//     lm_bench MESSAGES [options of Google Benchmark]
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <future>
#include <iostream>
#include <memory>
#include <numeric>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "Catalogues.h"
#include "Module.h"
#include "checkers.h"
#include "exchange.h"
#include "memory.h"
#include "programs.h"
#include "stages.h"

namespace {

using namespace lm_bench;

constexpr const SystemType* kTypes[] = {&kModule, &kGettext, &kIcu, &kBoostLocale};
constexpr const char* kKindNames[] = {"plain", "parameter", "plural"};
constexpr const char* kOrderNames[] = {"request", "repeated"};

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

/// @param name  of the benchmark, in parts; the number of messages follows.
template <class Measure>
auto* Register(const Catalogues& catalogues, std::initializer_list<const char*> name,
               Measure measure) {
    std::string path;
    for (const char* part : name) {
        path.append(part).append(1, '/');
    }
    path += std::to_string(catalogues.workload().Size());
    return benchmark::RegisterBenchmark(path.c_str(), std::move(measure));
}

void RegisterRequests(Catalogues& catalogues, const SystemType& type, Kind kind) {
    for (const Order order : {Order::EachOnce, Order::Repeated}) {
        Register(catalogues,
                 {kOrderNames[static_cast<std::size_t>(order)],
                  kKindNames[static_cast<std::size_t>(kind)], type.name},
                 [&catalogues, &type, kind, order, next = std::size_t{0}](auto& state) mutable {
                     AskAll(state, catalogues.Opened(type), catalogues.workload().Of(kind, order),
                            next);
                 });
    }
}

/// How long threads take that ask on and on, each from a place of its own.
std::chrono::duration<double> TimeOfThreads(Catalogues& catalogues, const SystemType& type,
                                            std::size_t count) {
    System& system = catalogues.Opened(type);
    const std::vector<Request>& requests = catalogues.workload().All();
    const auto ask = [&](std::size_t first) {
        constexpr std::size_t kAsked = 100000;  // so many that starting a thread does not count
        for (std::size_t i = 0; i < kAsked; ++i) {
            system.Answer(requests[(first + i) % requests.size()]);
        }
    };
    const auto begin = std::chrono::steady_clock::now();
    std::vector<std::future<void>> threads;
    for (std::size_t i = 0; i < count; ++i) {
        threads.push_back(std::async(std::launch::async, ask, requests.size() / count * i));
    }
    for (std::future<void>& thread : threads) {
        thread.get();
    }
    return std::chrono::steady_clock::now() - begin;
}

/// One thread and two in turn, so that whatever else the machine does disturbs both alike.
void RegisterThreads(Catalogues& catalogues, const SystemType& type) {
    Register(catalogues, {"threads", type.name},
             [&](benchmark::State& state) {
                 std::chrono::duration<double> one{};
                 std::chrono::duration<double> two{};
                 for ([[maybe_unused]] auto _ : state) {
                     one += TimeOfThreads(catalogues, type, 1);
                     two += TimeOfThreads(catalogues, type, 2);
                 }
                 state.counters["speedup"] = 2 * one / two;
             })
        ->MinTime(0.5)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

void RegisterStart(Catalogues& catalogues, const SystemType& type) {
    Register(catalogues, {"start", type.name}, [&](auto& state) {
        catalogues.File(type);
        const Request& request = catalogues.workload().All().front();
        type.open(catalogues.directory())->AnswerRightly(request);
        for ([[maybe_unused]] auto _ : state) {
            auto system = type.open(catalogues.directory());
            system->Answer(request);
            state.PauseTiming();
            system.reset();
            state.ResumeTiming();
        }
    })->Unit(benchmark::kMillisecond);
}

void RegisterStage(Catalogues& catalogues, const char* stage,
                   void (*measure)(benchmark::State&, const std::filesystem::path&)) {
    Register(catalogues, {"stage", stage}, [&catalogues, measure](auto& state) {
        measure(state, catalogues.File(kModule));
    })->Unit(benchmark::kMillisecond);
}

/// A further localizer of the culture, with a small scope, beside a first one that stays.
class SecondLocalizer {
public:
    explicit SecondLocalizer(const Catalogues& catalogues) : small_(10) {
        const auto tree = catalogues.directory() / "second";
        WriteScope(tree, "common", catalogues.workload());
        WriteScope(tree, "small", small_);
        manager_ = OpenManager(tree);
        first_ = std::make_unique<Module>(*manager_, u"small");
        first_->AnswerRightly(catalogues.workload().All().front());
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

void RegisterSecondLocalizer(Catalogues& catalogues) {
    Register(catalogues, {"second"},
             [&catalogues, second = std::shared_ptr<SecondLocalizer>()](auto& state) mutable {
                 if (!second) {
                     second = std::make_shared<SecondLocalizer>(catalogues);
                 }
                 second->Measure(state);
             })
        ->Unit(benchmark::kMicrosecond);
}

/// What the second localizer is held against: to read the common texts once, byte by byte.
void RegisterReadingPass(Catalogues& catalogues) {
    Register(catalogues, {"reading"}, [&](auto& state) {
        const std::filesystem::path file = catalogues.File(kModule);
        std::string bytes(file_size(file), ' ');
        for ([[maybe_unused]] auto _ : state) {
            std::ifstream(file, std::ios::binary)
                .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
            benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), 0U));
        }
    })->Unit(benchmark::kMicrosecond);
}

/// Measured by this program, run once more.
MemoryUse MeasureMemoryApart(const Catalogues& catalogues, const SystemType& type) {
    const auto self = std::filesystem::read_symlink("/proc/self/exe");
    const std::string command = "exec " + self.string() + " --memory '" + type.name + "' " +
                                std::to_string(catalogues.workload().Size()) + ' ' +
                                catalogues.directory().string();
    const std::unique_ptr<FILE, int (*)(FILE*)> child(popen(command.c_str(), "r"), pclose);
    std::array<char, 64> line{};
    MemoryUse use{};
    if (std::fgets(line.data(), line.size(), child.get()) == nullptr ||
        !(std::istringstream(line.data()) >> use.held >> use.peak)) {
        throw std::runtime_error("failed: " + command);
    }
    return use;
}

void RegisterMemory(Catalogues& catalogues, const SystemType& type) {
    Register(catalogues, {"memory", type.name}, [&](benchmark::State& state) {
        const auto file = static_cast<double>(file_size(catalogues.File(type)));
        MemoryUse use{};
        for ([[maybe_unused]] auto _ : state) {
            use = MeasureMemoryApart(catalogues, type);
        }
        const auto held = static_cast<double>(use.held);
        state.counters["held_per_message"] =
            held / static_cast<double>(catalogues.workload().Size());
        state.counters["held_per_file"] = held / file;
        state.counters["peak_per_file"] = static_cast<double>(use.peak) / file;
    })->Iterations(1);
}

/// @param task  what programs are measured at.
void RegisterProgram(Catalogues& catalogues, const char* task, const char* program,
                     void (*measure)(benchmark::State&, const Catalogues&)) {
    Register(catalogues, {task, program},
             [&catalogues, measure](auto& state) { measure(state, catalogues); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

void RegisterAll(Catalogues& catalogues) {
    constexpr std::size_t kMostParsed = 30000;  // patterns of more would take gigabytes
    for (const Kind kind : {Kind::Plain, Kind::Parameter, Kind::Plural}) {
        for (const SystemType* type : kTypes) {
            RegisterRequests(catalogues, *type, kind);
        }
        if (kind != Kind::Plain && catalogues.workload().Size() <= kMostParsed) {
            RegisterRequests(catalogues, kIcuParsed, kind);
        }
        RegisterRequests(catalogues, kFloor, kind);
        RegisterRequests(catalogues, kByHand, kind);
        RegisterRequests(catalogues, kTexts, kind);
    }
    RegisterSecondLocalizer(catalogues);
    RegisterReadingPass(catalogues);
    // The others keep what they loaded until the process ends, so only these start more than once.
    for (const SystemType* type : {&kModule, &kBoostLocale, &kBoostLocaleWide}) {
        RegisterStart(catalogues, *type);
    }
    RegisterStage(catalogues, "reading and decoding", MeasureDecoding);
    RegisterStage(catalogues, "parsing", MeasureParsing);
    RegisterStage(catalogues, "compiling", MeasureCompiling);
    RegisterProgram(catalogues, "check", "localize", MeasureCheck);
    RegisterProgram(catalogues, "check", "localize, 40 cultures", MeasureCheckOfMany);
    RegisterProgram(catalogues, "check", "msgfmt", MeasureMsgfmt);
    RegisterProgram(catalogues, "exchange", "localize-po", MeasureExchange);
    RegisterProgram(catalogues, "exchange", "libgettextpo", MeasureGettextPo);
    RegisterProgram(catalogues, "exchange", "msgmerge and msgfmt", MeasureMsgmerge);
    for (const SystemType* type : kTypes) {
        RegisterMemory(catalogues, *type);
        RegisterThreads(catalogues, *type);
    }
    RegisterMemory(catalogues, kBoostLocaleWide);
}

int MeasureMemory(const std::string& name, const std::string& size, const std::string& directory) {
    for (const SystemType* type : {&kModule, &kGettext, &kIcu, &kBoostLocale, &kBoostLocaleWide}) {
        if (name == type->name) {
            const MemoryUse use = MeasureMemory(*type, directory, Workload(std::stoul(size)));
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
    if (argc > 2 && argv[1] == std::string("--run")) {
        return PrintUse(argv + 2);
    }
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        throw std::runtime_error("say how many messages");
    }
    const auto files = std::filesystem::absolute("lm_bench_files");  // of an earlier version, too
    std::filesystem::remove_all(files);
    Catalogues catalogues(files, std::stoul(argv[1]));
    RegisterAll(catalogues);
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(files);
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "lm_bench: " << failure.what() << '\n';
    return 1;
}
