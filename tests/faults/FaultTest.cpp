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

// The built-in rules choose the other form; the last of the common texts is needed.
constexpr const char* kRule = "n == 5; n != 5;";
constexpr const char* kAppTexts =
    "Hello = 'Hello from ' + Brand\n"
    "Count = $n + {$n: ' files that nobody needs', ' file that nobody needs'}\n";
const std::string kLongKey =
    "a.key.that.is.longer.than.what.is.lower.cased.without.asking.for.memory";
const std::string kCommonTexts =
    kLongKey + " = Brand + Brand Brand = 'a company with a long name'\n";

constexpr std::string_view kPicture = "12345678";

/// A host with everything that a request needs, and what requests gave it.
class Host {
public:
    explicit Host(const lm_test::TempTree& tree)
        : root(tree.Path()), picturePath(tree.Path("neutral/app/picture.bin")) {
        culture.language = lm::Language::Portuguese;
        culture.region = "br";
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

    result_t Look() { return localizer->HasString(longKey); }

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

    bool HasLocalizer() const { return static_cast<bool>(localizer); }

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
    const string16_t app{u"app"}, picture{u"picture.bin"}, before{u"before"};
    const string16_t longKey = lm::host::ToString16(kLongKey);
    const string16_t texts = lm::host::ToString16(kAppTexts);
    const string16_t commonTexts = lm::host::ToString16(kCommonTexts);
    string16_t text = before;
};

enum Trait : unsigned { kReports = 1, kUsesFiles = 2 };

struct Case {
    const char* name;
    const char* after;  // the case that is done before, and the one before that, and so on
    result_t (Host::*request)();
    /// Whether it reports failures in words, unless memory is short for them, and whether it needs
    /// files, or memory alone.
    unsigned traits;
    std::vector<result_t> codes;  // of its failures

    bool Has(Trait trait) const { return (traits & trait) != 0; }
};

const result_t kFails = qor::rcUnspecifiedError;
const result_t kThrows = 1;  // std::bad_alloc leaves it

const Case kCases[] = {
    {"creation", "", &Host::CreateManager, 0, {qor::rcOutOfMemory}},
    {"initialisation", "creation", &Host::Init, kReports | kUsesFiles, {kFails}},
    {"listener", "creation", &Host::InitEx, kReports | kUsesFiles, {kFails}},
    {"localizer", "listener", &Host::CreateLocalizer, kReports, {kFails}},
    {"first", "localizer", &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"firstLook", "localizer", &Host::Look, kReports | kUsesFiles, {kFails}},
    {"later", "first", &Host::Count, kReports, {kFails}},
    {"path", "localizer", &Host::FindPath, kUsesFiles, {kFails, qor::rcNotFound}},
    {"resource", "localizer", &Host::FindResource, kUsesFiles, {kFails, kThrows}},
    {"stream", "localizer", &Host::Stream, kUsesFiles, {kFails, qor::rcNotFound}},
    {"read", "stream", &Host::ReadStream, kUsesFiles, {kFails}},
    {"buffer", "initialisation", &Host::CreateFromBuffer, 0, {kFails, kThrows}},
    {"buffers", "initialisation", &Host::CreateFromBuffers, 0, {kFails, kThrows}},
    {"bufferFirst", "buffer", &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"buffersFirst", "buffers", &Host::Greet, kReports | kUsesFiles, {kFails}},
    {"converter", "", &Host::Convert, 0, {qor::rcOutOfMemory, kThrows}},
};

class FaultTest : public testing::TestWithParam<Case> {
protected:
    FaultTest() {
        tree.Write("pt/br/Plural.rule", kRule);
        tree.Write("neutral/app/picture.bin", kPicture);
        tree.Write("neutral/Locs/app.lt", kAppTexts);
        tree.Write("neutral/Locs/common.lt", kCommonTexts);
    }

    static void Prepare(Host& host, const std::string& name) {
        for (const Case& prior : kCases) {
            if (prior.name == name) {
                Prepare(host, prior.after);
                EXPECT_EQ((host.*prior.request)(), qor::rcOk) << name;
            }
        }
    }

    /// The request with a fault in its way, and once more without.
    /// @return whether it met the fault.
    bool Try(faults::Source source, std::size_t first, bool lasts) const {
        Host host(tree);
        Prepare(host, GetParam().after);
        host.reports = 0;
        result_t code = qor::rcOk;
        faults::Start(source, first, lasts);
        try {
            code = (host.*GetParam().request)();
        } catch (const std::bad_alloc&) {
            code = kThrows;
        }
        const bool met = faults::Stop();
        if (code != qor::rcOk) {
            const auto& codes = GetParam().codes;
            const bool couldThrow = std::count(codes.begin(), codes.end(), kThrows) != 0;
            if (!qor::platform::kExceptionsPass && couldThrow && code == qor::rcOutOfMemory) {
                code = kThrows;  // in other words
            }
            EXPECT_TRUE(met) << "it fails without a fault";
            EXPECT_EQ(std::count(codes.begin(), codes.end(), code), 1)
                << std::hex << static_cast<std::uint32_t>(code);
            EXPECT_TRUE(host.reports > 0 || source == faults::Source::Memory ||
                        !GetParam().Has(kReports))
                << "no word about it";
        }
        EXPECT_EQ((host.*GetParam().request)(), qor::rcOk) << "the next request";
        if (source == faults::Source::Memory && host.HasLocalizer()) {
            EXPECT_EQ(host.Count(), qor::rcOk) << "a plural form";
        }
        return met;
    }

    /// Tries a fault at the first call, the second one and so on, until there is none to fail.
    void TryAll(faults::Source source, bool lasts) const {
        Try(source, 1, lasts);  // from now on, what the process keeps is there
        std::size_t first = 0;
        for (bool met = true; met && !HasFailure();) {
            SCOPED_TRACE(++first);
            const std::size_t blocks = faults::LiveBlocks();
            const std::size_t files = faults::OpenFiles();
            met = Try(source, first, lasts);
            EXPECT_EQ(faults::LiveBlocks(), blocks) << "memory leaked";
            EXPECT_EQ(qorCanUnloadModule(), qor::rcOk);
            EXPECT_EQ(faults::OpenFiles(), files) << "a file stays open";
        }
        EXPECT_EQ(first > 1, source == faults::Source::Files
                                 ? GetParam().Has(kUsesFiles)
                                 : GetParam().request != &Host::ReadStream);
    }

    lm_test::TempTree tree;
};

TEST_P(FaultTest, MemoryFails) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Memory, lasts);
    }
}

TEST_P(FaultTest, FilesFail) {
    for (const bool lasts : {false, true}) {
        TryAll(faults::Source::Files, lasts);
    }
}

/// Lists of tests would show the bytes of a case otherwise.
void PrintTo(const Case& tested, std::ostream* out) {
    *out << tested.name;
}

INSTANTIATE_TEST_SUITE_P(Requests, FaultTest, testing::ValuesIn(kCases),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
