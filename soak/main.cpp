// Makes localizers, most of them hostile, on two threads, and watches what the process keeps of them.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>
#include <stdexcept>
#include <thread>
#include <utility>

#include "cases.h"
#include "localization_manager/host/host.h"

namespace {

namespace fs = std::filesystem;
using namespace localization_manager;

// What the present thread's callbacks heard last; the module calls back on the asking thread.
thread_local std::string lastReport;
thread_local std::string lastResolved;

std::optional<std::string> Param(const std::string& name) {
    if (name == "thrown") {
        throw std::runtime_error("the host fails");
    }
    return name == "n" ? std::optional("3") : name == "who" ? std::optional("Ada") : std::nullopt;
}

/// What all visitors use.
struct Shared {
    Shared(const host::Module& itsModule, const fs::path& directory)
        : module(itsModule), roots{directory / "one", directory / "two"} {
        std::for_each(roots.begin(), roots.end(), soak::WriteTree);
        host::Check(Init(*manager, roots[0]), "cannot initialise");
    }

    qor::result_t Init(ILocalizationManager& initialised, const fs::path& root) const {
        return initialised.InitEx(host::ToString16(root.string()), {}, errors);
    }

    const host::Module& module;
    const std::array<fs::path, 2> roots;
    const qor::objptr_t<host::ServiceLocator> services =
        host::Make<host::ServiceLocator>(host::Make<host::Tracer>(nullptr));
    const qor::objptr_t<IErrorListener> errors = host::Make<host::ErrorListener>(
        [](std::uint32_t, std::string_view text) { lastReport = text; });
    const qor::objptr_t<IParamResolver> params = host::Make<host::ParamResolver>(Param);
    const qor::objptr_t<IResolveListener> listener = host::Make<host::ResolveListener>(
        [](auto, const auto&, const auto&, const std::string& value) { lastResolved = value; });
    const qor::objptr_t<ICultureConverter> converter = module.CreateCultureConverter(*services);
    const qor::objptr_t<ILocalizationManager> manager = module.CreateManager(*services);

    // Counted of localizers: those from files, from a buffer, from buffers.
    std::array<std::atomic<long>, 3> localizers = {};
    std::atomic<long> requests{0};
    std::atomic<long> refused{0};
    std::atomic<long> streams{0};
    std::atomic<long> managers{1};
    std::atomic<long> wrong{0};
};

/// Has localizers made by the manager of all and by one of its own, and asks each.
class Visitor {
public:
    Visitor(Shared& shared, unsigned seed) : shared_(shared), engine_(seed) {}

    void Visit(long localizers) {
        while (localizers-- > 0) {
            if (!own_ || Draw(4096) == 0) {
                own_ = shared_.module.CreateManager(*shared_.services);
                ++shared_.managers;
                root_.clear();
            }
            if (root_.empty() || Draw(64) == 0) {
                root_ = shared_.roots[Draw(2)];
                Expect(shared_.Init(*own_, root_) == qor::rcOk, "initialisation");
                Expect(shared_.Init(*own_, "/none") == qor::rcUnspecifiedError, "no directory");
            }
            const soak::Case& visited = cases_[Draw(2) == 0 ? Draw(3) : Draw(cases_.size())];
            Draw(2) == 0 ? VisitOne(visited, *own_, root_)
                         : VisitOne(visited, *shared_.manager, shared_.roots[0]);
        }
    }

private:
    std::size_t Draw(std::size_t bound) { return engine_() % bound; }

    void Expect(bool holds, const std::string& what) {
        if (!holds && ++shared_.wrong <= 5) {
            std::cerr << "wrong: " + what + "; last report: " + lastReport + '\n';
        }
    }

    void VisitOne(const soak::Case& visited, ILocalizationManager& manager, const fs::path& root) {
        Culture culture;
        if (shared_.converter->GetCultureByIsoName(visited.culture.c_str(), culture) != qor::rcOk) {
            culture.language = static_cast<Language>(99);
        }
        const std::size_t kind = visited.text.empty() ? 0 : Draw(shared_.localizers.size());
        const qor::string16_t text(visited.text);
        const std::string common = Draw(2) == 0 ? "" : soak::CommonText(visited.culture);
        IParamResolver* const params = shared_.params.get();
        qor::objptr_t<ILocalizer> made;
        const qor::result_t code =
            kind == 0   ? manager.CreateLocalizer(host::ToString16(visited.scope), culture, params,
                                                  made.Ref())
            : kind == 1 ? manager.CreateLocalizerFromBuffer(text, culture, params, made.Ref())
                        : manager.CreateBufferLocalizer(u"soak-", text, host::ToString16(common),
                                                        culture, params, made.Ref());
        host::Check(code, "cannot make a localizer");
        ++shared_.localizers[kind];
        AskForText(visited, *made);
        if (kind == 0 && visited.culture.size() == 2 && Draw(4) == 0) {
            AskForFiles(std::move(made), root);
        }
    }

    void AskForText(const soak::Case& visited, ILocalizer& localizer) {
        const qor::string16_t key(visited.key);
        qor::string16_t text;
        lastReport = lastResolved = "";
        const qor::result_t code = localizer.GetResolvedString(key, text, shared_.listener.get());
        const bool refused = visited.answer[0] == '!';
        Expect(refused
                   ? code == qor::rcUnspecifiedError && text.empty() &&
                         lastReport.find(visited.answer.substr(1)) != std::string::npos
                   : code == qor::rcOk && host::ToUtf8(text) == visited.answer &&
                         lastResolved == visited.answer && localizer.HasString(key) == qor::rcOk,
               visited.scope + ' ' + visited.culture + " gives '" + host::ToUtf8(text) + '\'');
        ++shared_.requests;
        shared_.refused += refused ? 1 : 0;
    }

    void AskForFiles(qor::objptr_t<ILocalizer> localizer, const fs::path& root) {
        qor::objptr_t<qor::IIO> stream;
        qor::string16_t path;
        Expect(localizer->GetStream(u"folder", stream.Ref()) == qor::rcUnspecifiedError &&
                   localizer->GetStream(u"none", stream.Ref()) == qor::rcNotFound &&
                   localizer->HasResource(u"file") == qor::rcOk &&
                   localizer->GetPath(u"file", path) == qor::rcOk &&
                   host::ToUtf8(path).find(root.string()) == 0,
               "files");
        host::Check(localizer->GetStream(u"file", stream.Ref()), "cannot open a stream");
        localizer = nullptr;  // the stream lives on
        char bytes[16];
        std::uint32_t read = 0;
        Expect(stream->Seek(qor::seek_origin::End, -3, nullptr) == qor::rcOk &&
                   stream->Read(bytes, sizeof(bytes), &read) == qor::rcOk &&
                   root.filename() == std::string(bytes, read),
               "stream");
        ++shared_.streams;
    }

    Shared& shared_;
    std::mt19937 engine_;
    const std::vector<soak::Case> cases_ = soak::Cases();
    fs::path root_;  // of the own manager
    qor::objptr_t<ILocalizationManager> own_;
};

/// Resident memory in KiB.
long Memory() {
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

long Descriptors() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), {});
}

/// Takes stock after every twentieth of the work, while no thread is in the module.
/// @return whether nothing was kept and no answer was wrong.
bool Soak(const host::Module& module, long localizers, const fs::path& directory) {
    constexpr long kSlices = 20;       // the first one is to warm up
    constexpr long kTolerance = 2048;  // KiB that the allocator may keep for itself
    Shared shared(module, directory);
    std::array<Visitor, 2> visitors = {Visitor(shared, 1), Visitor(shared, 2)};
    std::vector<long> memory;
    const long descriptors = Descriptors();
    for (long slice = 0; slice < kSlices; ++slice) {
        std::array<std::thread, 2> threads;
        for (std::size_t i = 0; i < threads.size(); ++i) {
            threads[i] = std::thread([&, i] { visitors[i].Visit(localizers / kSlices / 2); });
        }
        std::for_each(threads.begin(), threads.end(), std::mem_fn(&std::thread::join));
        memory.push_back(Memory());
    }
    const long grown = *std::max_element(memory.begin(), memory.end()) - memory.front();
    const long leftOpen = Descriptors() - descriptors;
    std::cout << "localizers from files " << shared.localizers[0] << ", from a buffer "
              << shared.localizers[1] << ", from buffers " << shared.localizers[2] << "\nmanagers "
              << shared.managers << ", streams " << shared.streams << "\ntexts asked for "
              << shared.requests << ", refused " << shared.refused << ", answered wrong "
              << shared.wrong << "\nKiB of memory after the warm-up " << memory.front() << ", peak "
              << memory.front() + grown << ", end " << memory.back()
              << "\ndescriptors at the start " << descriptors << ", end " << descriptors + leftOpen
              << '\n'
              << (grown > kTolerance ? "FAILED: memory grew\n" : "")
              << (leftOpen > 0 ? "FAILED: a descriptor stayed open\n" : "")
              << (shared.wrong > 0 ? "FAILED: answers were wrong\n" : "");
    return grown <= kTolerance && leftOpen <= 0 && shared.wrong == 0;
}

}  // namespace

int main(int argc, char** argv) try {
    std::string directory = fs::temp_directory_path() / "lm_soak_XXXXXX";
    if (::mkdtemp(directory.data()) == nullptr) {
        throw std::runtime_error("cannot make " + directory);
    }
    const host::Module module;
    const bool passed = Soak(module, argc > 1 ? std::stol(argv[1]) : 1000000, directory);
    fs::remove_all(directory);
    std::cout << (module.CanUnload() ? "" : "FAILED: the module could not be unloaded\n");
    return passed && module.CanUnload() ? 0 : 1;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
