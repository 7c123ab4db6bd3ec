// Every call to the system fails once, and from there on, in every request of a host.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "Faults.h"
#include "TempTree.h"
#include "localization_manager/ICultureConverter.h"
#include "localization_manager/ILocalizationManager.h"
#include "localization_manager/host/host.h"
#include "localization_manager/module.h"

extern "C" qor::result_t qorGetObjectFactory(qor::IServiceLocator* services, std::uint32_t classId,
                                             void** factory);
extern "C" qor::result_t qorCanUnloadModule();

namespace {

namespace lm = localization_manager;
namespace faults = lm_test::faults;
using lm::host::Make;
using qor::string16_t;

constexpr const char* kAppTexts =
    "Hello = 'Hello from ' + Brand\n"
    "Count = $n + {$n: ' file that nobody needs', ' files that nobody needs'}\n";
constexpr const char* kCommonTexts = "Brand = 'a company with a long name' Long = Brand + Brand\n";

constexpr const char* kPicture = "12345678";

/// A host with everything that a request needs, and what requests gave it.
class Host {
public:
    explicit Host(const lm_test::TempTree& tree)
        : root(tree.Path()), picturePath(tree.Path("neutral/app/picture.bin")) {
        culture.language = lm::Language::English;
    }

    template <class Interface>
    qor::result_t Create(std::uint32_t classId, qor::objptr_t<Interface>& object) const {
        qor::objptr_t<qor::IObjectFactory> factory;
        const qor::result_t code =
            qorGetObjectFactory(services.get(), classId, reinterpret_cast<void**>(factory.Ref()));
        return qor::Failed(code) ? code
                                 : factory->CreateObject(services.get(), Interface::InterfaceId,
                                                         reinterpret_cast<void**>(object.Ref()));
    }

    /// Asks for a text, which is the expected one or untouched.
    qor::result_t Ask(const string16_t& key, std::u16string_view expected) {
        const bool failed = qor::Failed(localizer->GetResolvedString(key, text, listener.get()));
        const bool asExpected = text.view() == (failed ? std::u16string_view(u"before") : expected);
        text = before;
        return !asExpected ? qor::rcUnexpected : failed ? qor::rcUnspecifiedError : qor::rcOk;
    }

    const string16_t root;
    const string16_t picturePath;
    lm::Culture culture;
    std::size_t reports = 0;
    qor::objptr_t<lm::host::ServiceLocator> services =
        Make<lm::host::ServiceLocator>([this](auto, auto) { ++reports; });
    qor::objptr_t<lm::IErrorListener> errors =
        Make<lm::host::ErrorListener>([this](auto, auto) { ++reports; });
    qor::objptr_t<lm::IResolveListener> listener =
        Make<lm::host::ResolveListener>([](auto, const auto&, const auto&, const auto&) {});
    qor::objptr_t<lm::IParamResolver> resolver =
        Make<lm::host::ParamResolver>([](const std::string&) { return "5"; });
    qor::objptr_t<lm::ILocalizationManager> manager;
    qor::objptr_t<lm::ILocalizer> localizer;
    qor::objptr_t<qor::IIO> stream;

    const string16_t app{u"app"};
    const string16_t appTexts = lm::host::ToString16(kAppTexts);
    const string16_t commonTexts = lm::host::ToString16(kCommonTexts);
    const string16_t hello{u"Hello"};
    const string16_t count{u"Count"};
    const string16_t picture{u"picture.bin"};
    const string16_t before{u"before"};
    string16_t text = before;
};

qor::result_t CreateManager(Host& host) {
    return host.Create(lm::class_id::LocalizationManager, host.manager);
}

qor::result_t Initialise(Host& host) {
    return host.manager->Init(host.root, host.root);
}

qor::result_t InitialiseWithListener(Host& host) {
    return host.manager->InitEx(host.root, host.root, host.errors);
}

qor::result_t CreateLocalizer(Host& host) {
    return host.manager->CreateLocalizer(host.app, host.culture, host.resolver.get(),
                                         host.localizer.Ref());
}

qor::result_t CreateFromBuffer(Host& host) {
    return host.manager->CreateLocalizerFromBuffer(host.appTexts, host.culture, host.resolver.get(),
                                                   host.localizer.Ref());
}

qor::result_t CreateFromBuffers(Host& host) {
    return host.manager->CreateBufferLocalizer(host.app, host.appTexts, host.commonTexts,
                                               host.culture, host.resolver.get(),
                                               host.localizer.Ref());
}

qor::result_t Greet(Host& host) {
    return host.Ask(host.hello, u"Hello from a company with a long name");
}

qor::result_t Count(Host& host) {
    return host.Ask(host.count, u"5 files that nobody needs");
}

qor::result_t Look(Host& host) {
    return host.localizer->HasString(host.hello);
}

qor::result_t FindPath(Host& host) {
    const qor::result_t code = host.localizer->GetPath(host.picture, host.text);
    const bool isRight = host.text == (qor::Failed(code) ? host.before : host.picturePath);
    host.text = host.before;
    return isRight ? code : qor::rcUnexpected;
}

qor::result_t FindResource(Host& host) {
    return host.localizer->HasResource(host.picture);
}

qor::result_t Stream(Host& host) {
    host.stream = nullptr;
    const qor::result_t code = host.localizer->GetStream(host.picture, host.stream.Ref());
    return static_cast<bool>(host.stream) == qor::Failed(code) ? qor::rcUnexpected : code;
}

qor::result_t ReadStream(Host& host) {
    char bytes[8] = "";
    std::uint32_t count = 0;
    std::int64_t size = 0;
    const qor::result_t asked = host.stream->GetSize(&size);
    host.stream->Seek(qor::seek_origin::Start, 0, nullptr);
    const qor::result_t code =
        qor::Failed(asked) ? asked : host.stream->Read(bytes, sizeof bytes, &count);
    const std::string_view read(bytes, count);
    const bool isRead = count > 0 && std::string_view(kPicture).substr(0, count) == read;
    return isRead || qor::Failed(code) ? code : qor::rcUnexpected;
}

qor::result_t Convert(Host& host) {
    const qor::string8_t name("en-a-long-region");
    qor::objptr_t<lm::ICultureConverter> converter;
    const qor::result_t code = host.Create(lm::class_id::CultureConverter, converter);
    return qor::Failed(code) ? code : converter->GetCultureByIsoName(name, host.culture);
}

using Request = qor::result_t (*)(Host& host);

struct Case {
    const char* name;
    std::vector<Request> preparations;
    Request request;
    bool throws;                       // std::bad_alloc may leave it
    std::vector<qor::result_t> codes;  // of its failures
    bool reports;                      // in words, unless memory is short for them
    bool usesFiles;                    // or memory alone
};

std::ostream& operator<<(std::ostream& out, const Case& tested) {
    return out << tested.name;
}

const qor::result_t kFails = qor::rcUnspecifiedError;
const std::vector<Request> kReady = {CreateManager, InitialiseWithListener, CreateLocalizer};
const std::vector<Request> kBuilt = {CreateManager, InitialiseWithListener, CreateLocalizer, Greet};
const std::vector<Request> kOpened = {CreateManager, InitialiseWithListener, CreateLocalizer,
                                      Stream};

class FaultTest : public testing::TestWithParam<Case> {
protected:
    /// Writes the files, over whatever became of them.
    void WriteTree() const {
        std::filesystem::remove_all(tree.Root());
        tree.Write("en/Plural.rule", "n == 1; n != 1;");
        tree.Write("neutral/app/picture.bin", kPicture);
        tree.Write("neutral/Locs/app.lt", kAppTexts);
        tree.Write("neutral/Locs/common.lt", kCommonTexts);
    }

    /// The request with a fault in its way, and once more without.
    /// @return whether it met the fault.
    bool Try(faults::Source source, std::size_t first, bool lasts, const faults::Deed& deed) const {
        Host host(tree);
        for (const Request prepare : GetParam().preparations) {
            EXPECT_EQ(prepare(host), qor::rcOk);
        }
        host.reports = 0;
        qor::result_t code = qor::rcOk;
        faults::Start(source, first, lasts, deed);
        try {
            code = GetParam().request(host);
        } catch (const std::bad_alloc&) {
            code = GetParam().throws ? qor::rcOutOfMemory : qor::rcUnexpected;
        }
        const bool met = faults::Stop();
        ExpectFailure(code, met, source == faults::Source::Files ? host.reports : 1);
        if (source == faults::Source::Files) {
            WriteTree();
        }
        EXPECT_EQ(GetParam().request(host), qor::rcOk) << "the next request";
        return met;
    }

    static void ExpectFailure(qor::result_t code, bool met, std::size_t reports) {
        const auto& codes = GetParam().codes;
        if (code == qor::rcOk) {
            return;
        }
        EXPECT_TRUE(met) << "it fails without a fault";
        EXPECT_NE(std::find(codes.begin(), codes.end(), code), codes.end())
            << std::hex << static_cast<std::uint32_t>(code);
        EXPECT_TRUE(reports > 0 || !GetParam().reports) << "no word about it";
    }

    /// Tries faults at the first call, the second one and so on, until there is none to fail.
    void TryAll(faults::Source source, bool lasts, const faults::Deed& deed) {
        WriteTree();
        Try(source, 1, lasts, deed);  // from now on, what the process keeps is there
        for (std::size_t first = 1; !HasFailure(); ++first) {
            SCOPED_TRACE(first);
            const std::size_t blocks = faults::LiveBlocks();
            const auto files = OpenFiles();
            const bool met = Try(source, first, lasts, deed);
            EXPECT_EQ(faults::LiveBlocks(), blocks) << "memory leaked";
            EXPECT_EQ(qorCanUnloadModule(), qor::rcOk);
            EXPECT_EQ(OpenFiles(), files) << "a file stays open";
            if (!met) {
                break;
            }
            ++points;
        }
    }

    static std::ptrdiff_t OpenFiles() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }

    /// Shows how many faults there were.
    void ExpectPoints(bool expected) {
        EXPECT_EQ(points > 0, expected);
        RecordProperty("faults", static_cast<int>(points));
        std::cout << points << " faults\n";
    }

    lm_test::TempTree tree;
    std::size_t points = 0;
};

TEST_P(FaultTest, MemoryFails) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Memory, lasts, [] { return true; });
    }
    ExpectPoints(GetParam().request != ReadStream);  // which needs none
}

TEST_P(FaultTest, FilesFail) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Files, lasts, [] { return true; });
    }
    ExpectPoints(GetParam().usesFiles);
}

TEST_P(FaultTest, FilesChangeUnderARequest) {
    const auto changeAll = [this](auto change) {
        return [this, change] {
            for (const char* const name : {"en/Plural.rule", "neutral/app/picture.bin",
                                           "neutral/Locs/app.lt", "neutral/Locs/common.lt"}) {
                change(tree.Root() / name);
            }
            return false;
        };
    };
    namespace fs = std::filesystem;
    TryAll(faults::Source::Files, false,
           changeAll([](const fs::path& file) { fs::resize_file(file, fs::file_size(file) / 2); }));
    TryAll(faults::Source::Files, false, changeAll([](const fs::path& file) { fs::remove(file); }));
    TryAll(faults::Source::Files, false, changeAll([](const fs::path& file) {
               fs::remove(file);
               fs::create_directory(file);
           }));
    ExpectPoints(GetParam().usesFiles);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, FaultTest,
    testing::Values(
        Case{"creation", {}, CreateManager, false, {qor::rcOutOfMemory}, false, false},
        Case{"initialisation", {CreateManager}, Initialise, false, {kFails}, true, true},
        Case{"listener", {CreateManager}, InitialiseWithListener, false, {kFails}, true, true},
        Case{"localizer",
             {CreateManager, Initialise},
             CreateLocalizer,
             false,
             {kFails},
             true,
             false},
        Case{"first", kReady, Greet, false, {kFails}, true, true},
        Case{"firstLook", kReady, Look, false, {kFails}, true, true},
        Case{"later", kBuilt, Count, false, {kFails}, true, false},
        Case{"path", kReady, FindPath, false, {kFails, qor::rcNotFound}, false, true},
        Case{"resource", kReady, FindResource, true, {kFails, qor::rcOutOfMemory}, false, true},
        Case{"stream", kReady, Stream, false, {kFails, qor::rcNotFound}, false, true},
        Case{"read", kOpened, ReadStream, false, {kFails}, false, true},
        Case{"buffer",
             {CreateManager, Initialise},
             CreateFromBuffer,
             true,
             {kFails, qor::rcOutOfMemory},
             false,
             false},
        Case{"buffers",
             {CreateManager, Initialise},
             CreateFromBuffers,
             true,
             {kFails, qor::rcOutOfMemory},
             false,
             false},
        Case{"bufferFirst",
             {CreateManager, Initialise, CreateFromBuffer},
             Greet,
             false,
             {kFails},
             true,
             true},
        Case{"buffersFirst",
             {CreateManager, Initialise, CreateFromBuffers},
             Greet,
             false,
             {kFails},
             true,
             true},
        Case{"converter", {}, Convert, true, {qor::rcOutOfMemory}, false, false}),
    [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
