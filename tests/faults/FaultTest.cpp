// Every call to the system fails once, and from there on, in every request of a host.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
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
using qor::result_t;
using qor::string16_t;

constexpr const char* kAppTexts =
    "Hello = 'Hello from ' + Brand\n"
    "Count = $n + {$n: ' file that nobody needs', ' files that nobody needs'}\n";
constexpr const char* kCommonTexts = "Brand = 'a company with a long name' Long = Brand + Brand\n";

constexpr std::string_view kPicture = "12345678";

/// A host with everything that a request needs, and what requests gave it.
class Host {
public:
    explicit Host(const lm_test::TempTree& tree)
        : root(tree.Path()), picturePath(tree.Path("neutral/app/picture.bin")) {
        culture.language = lm::Language::English;
    }

    result_t CreateManager() { return Create(lm::class_id::LocalizationManager, manager); }

    result_t Init() { return manager->Init(root, root); }

    result_t InitEx() { return manager->InitEx(root, root, errors); }

    result_t CreateLocalizer() {
        return manager->CreateLocalizer(app, culture, resolver.get(), localizer.Ref());
    }

    result_t CreateFromBuffer() {
        return manager->CreateLocalizerFromBuffer(texts, culture, resolver.get(), localizer.Ref());
    }

    result_t CreateFromBuffers() {
        return manager->CreateBufferLocalizer(app, texts, commonTexts, culture, resolver.get(),
                                              localizer.Ref());
    }

    result_t Greet() { return Ask(u"Hello", u"Hello from a company with a long name"); }

    result_t Count() { return Ask(u"Count", u"5 files that nobody needs"); }

    result_t Look() { return localizer->HasString(hello); }

    result_t FindPath() { return Checked(localizer->GetPath(picture, text), picturePath.view()); }

    result_t FindResource() { return localizer->HasResource(picture); }

    result_t Stream() {
        stream = nullptr;
        const result_t code = localizer->GetStream(picture, stream.Ref());
        return static_cast<bool>(stream) == qor::Failed(code) ? qor::rcUnexpected : code;
    }

    result_t ReadStream() {
        char bytes[8] = "";
        std::uint32_t count = 0;
        std::int64_t size = 0;
        if (const result_t code = stream->GetSize(&size); qor::Failed(code)) {
            return code;
        }
        stream->Seek(qor::seek_origin::Start, 0, nullptr);
        const result_t code = stream->Read(bytes, sizeof bytes, &count);
        const bool isRead =
            count > 0 && kPicture.substr(0, count) == std::string_view(bytes, count);
        return isRead || qor::Failed(code) ? code : qor::rcUnexpected;
    }

    result_t Convert() {
        const qor::string8_t name("en-a-long-region");
        qor::objptr_t<lm::ICultureConverter> converter;
        const result_t code = Create(lm::class_id::CultureConverter, converter);
        return qor::Failed(code) ? code : converter->GetCultureByIsoName(name, culture);
    }

    std::size_t reports = 0;

private:
    template <class Interface>
    result_t Create(std::uint32_t classId, qor::objptr_t<Interface>& object) const {
        qor::objptr_t<qor::IObjectFactory> factory;
        const result_t code =
            qorGetObjectFactory(services.get(), classId, reinterpret_cast<void**>(factory.Ref()));
        return qor::Failed(code) ? code
                                 : factory->CreateObject(services.get(), Interface::InterfaceId,
                                                         reinterpret_cast<void**>(object.Ref()));
    }

    result_t Ask(const string16_t& key, std::u16string_view expected) {
        return Checked(localizer->GetResolvedString(key, text, listener.get()), expected);
    }

    /// The code, if the text is the expected one, or untouched after a failure.
    result_t Checked(result_t code, std::u16string_view expected) {
        const bool isRight = text.view() == (qor::Failed(code) ? before.view() : expected);
        text = before;
        return isRight ? code : qor::rcUnexpected;
    }

    const string16_t root, picturePath;
    lm::Culture culture;
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
    const string16_t app{u"app"}, hello{u"Hello"}, picture{u"picture.bin"}, before{u"before"};
    const string16_t texts = lm::host::ToString16(kAppTexts);
    const string16_t commonTexts = lm::host::ToString16(kCommonTexts);
    string16_t text = before;
};

using Request = result_t (Host::*)();
using Requests = std::vector<Request>;
enum Trait : unsigned { kThrows = 1, kReports = 2, kUsesFiles = 4 };

struct Case {
    const char* name;
    Requests preparations;
    Request request;
    /// Whether std::bad_alloc may leave it, whether it reports failures in words, unless memory is
    /// short for them, and whether it needs files, or memory alone.
    unsigned traits;
    std::vector<result_t> codes;  // of its failures

    bool Has(Trait trait) const { return (traits & trait) != 0; }
};

const result_t kFails = qor::rcUnspecifiedError;
const result_t kNoMemory = qor::rcOutOfMemory;
const Requests kMade = {&Host::CreateManager};
const Requests kInit = {&Host::CreateManager, &Host::Init};
const Requests kReady = {&Host::CreateManager, &Host::InitEx, &Host::CreateLocalizer};
const Requests kBuilt = {&Host::CreateManager, &Host::InitEx, &Host::CreateLocalizer, &Host::Greet};
const Requests kOpen = {&Host::CreateManager, &Host::InitEx, &Host::CreateLocalizer, &Host::Stream};
const Requests kBuffer = {&Host::CreateManager, &Host::Init, &Host::CreateFromBuffer};
const Requests kBuffers = {&Host::CreateManager, &Host::Init, &Host::CreateFromBuffers};

const Case kCases[] = {
    {"creation", {}, &Host::CreateManager, 0, {kNoMemory}},
    {"initialisation", kMade, &Host::Init, kReports | kUsesFiles, {kFails}},
    {"listener", kMade, &Host::InitEx, kReports | kUsesFiles, {kFails}},
    {"localizer", kInit, &Host::CreateLocalizer, kReports, {kFails}},
    {"first", kReady, &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"firstLook", kReady, &Host::Look, kReports | kUsesFiles, {kFails}},
    {"later", kBuilt, &Host::Count, kReports, {kFails}},
    {"path", kReady, &Host::FindPath, kUsesFiles, {kFails, qor::rcNotFound}},
    {"resource", kReady, &Host::FindResource, kThrows | kUsesFiles, {kFails, kNoMemory}},
    {"stream", kReady, &Host::Stream, kUsesFiles, {kFails, qor::rcNotFound}},
    {"read", kOpen, &Host::ReadStream, kUsesFiles, {kFails}},
    {"buffer", kInit, &Host::CreateFromBuffer, kThrows, {kFails, kNoMemory}},
    {"buffers", kInit, &Host::CreateFromBuffers, kThrows, {kFails, kNoMemory}},
    {"bufferFirst", kBuffer, &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"buffersFirst", kBuffers, &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"converter", {}, &Host::Convert, kThrows, {kNoMemory}},
};

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
            EXPECT_EQ((host.*prepare)(), qor::rcOk);
        }
        host.reports = 0;
        result_t code = qor::rcOk;
        faults::Start(source, first, lasts, deed);
        try {
            code = (host.*GetParam().request)();
        } catch (const std::bad_alloc&) {
            code = GetParam().Has(kThrows) ? kNoMemory : qor::rcUnexpected;
        }
        const bool met = faults::Stop();
        if (code != qor::rcOk) {
            const auto& codes = GetParam().codes;
            EXPECT_TRUE(met) << "it fails without a fault";
            EXPECT_EQ(std::count(codes.begin(), codes.end(), code), 1)
                << std::hex << static_cast<std::uint32_t>(code);
            EXPECT_TRUE(host.reports > 0 || source == faults::Source::Memory ||
                        !GetParam().Has(kReports))
                << "no word about it";
        }
        if (source == faults::Source::Files) {
            WriteTree();
        }
        EXPECT_EQ((host.*GetParam().request)(), qor::rcOk) << "the next request";
        return met;
    }

    /// Tries a fault at the first call, the second one and so on, until there is none to fail.
    void TryAll(faults::Source source, bool lasts, const faults::Deed& deed) {
        WriteTree();
        Try(source, 1, lasts, deed);  // from now on, what the process keeps is there
        std::size_t first = 0;
        for (bool met = true; met && !HasFailure();) {
            SCOPED_TRACE(++first);
            const std::size_t blocks = faults::LiveBlocks();
            const auto files = OpenFiles();
            met = Try(source, first, lasts, deed);
            EXPECT_EQ(faults::LiveBlocks(), blocks) << "memory leaked";
            EXPECT_EQ(qorCanUnloadModule(), qor::rcOk);
            EXPECT_EQ(OpenFiles(), files) << "a file stays open";
        }
        EXPECT_EQ(first > 1, source == faults::Source::Files
                                 ? GetParam().Has(kUsesFiles)
                                 : GetParam().request != &Host::ReadStream);
    }

    static std::ptrdiff_t OpenFiles() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }

    lm_test::TempTree tree;
};

TEST_P(FaultTest, MemoryFails) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Memory, lasts, [] { return true; });
    }
}

TEST_P(FaultTest, FilesFail) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Files, lasts, [] { return true; });
    }
}

TEST_P(FaultTest, FilesChangeUnderARequest) {
    namespace fs = std::filesystem;
    using Change = void (*)(const fs::path& file);
    const Change shorten = [](const fs::path& file) {
        fs::resize_file(file, fs::file_size(file) / 2);
    };
    const Change remove = [](const fs::path& file) { fs::remove(file); };
    const Change replace = [](const fs::path& file) {
        fs::remove(file);
        fs::create_directory(file);
    };
    for (const Change change : {shorten, remove, replace}) {
        TryAll(faults::Source::Files, false, [this, change] {
            for (const char* const name : {"en/Plural.rule", "neutral/app/picture.bin",
                                           "neutral/Locs/app.lt", "neutral/Locs/common.lt"}) {
                change(tree.Root() / name);
            }
            return false;
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Requests, FaultTest, testing::ValuesIn(kCases),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
