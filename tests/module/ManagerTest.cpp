// Initialising the manager, what its localizers share, and how long who holds what.
#include <chrono>
#include <future>
#include <stdexcept>

#include "ErrorText.h"
#include "ModuleHost.h"
#include "localization_manager/IConstruct.h"

namespace {

using namespace lm_test;

constexpr Kind kKinds[] = {Kind::File, Kind::Buffer, Kind::Buffers};

class ManagerTest : public ModuleHost {
protected:
    ManagerTest() {
        for (const std::string name : {"a", "b"}) {
            tree.Write(name + "/neutral/Locs/app.lt", "Own = '" + name + "' Param = $p");
            tree.Write(name + "/neutral/Locs/common.lt", "Common = '" + name + "'");
        }
    }

    /// For out arguments that stay as they are.
    ILocalizer* const untouched = reinterpret_cast<ILocalizer*>(this);
};

TEST_F(ManagerTest, UninitialisedManagerMakesNoLocalizer) {
    const Culture culture;
    ILocalizer* out = untouched;
    EXPECT_EQ(CreateLocalizer(Kind::File, u"", culture, nullptr, nullptr), qor::rcInvalidArgument);
    EXPECT_EQ(Init(u"", tree.Path("a"), listener), qor::rcInvalidState);
    EXPECT_EQ(References(*listener), 1U);
    EXPECT_EQ(CreateLocalizer(Kind::File, u"app", culture, nullptr, &out), qor::rcInvalidState);
    for (const Kind kind : {Kind::Buffer, Kind::Buffers}) {
        const auto create = [&, kind = kind] {
            return CreateLocalizer(kind, u"a = 'x'", culture, nullptr, &out);
        };
        ExpectLeavesOr<std::runtime_error>(qor::rcUnknownException, create);
        if (qor::platform::kExceptionsPass) {
            EXPECT_EQ(Shown(ErrorText<std::runtime_error>(create)),
                      "Contract Violation! Violated argument 'resourceProvider_' at <function> at "
                      "src\\File/buffer_resource_provider:25Description: unexpected null pointer");
        }
    }
    EXPECT_EQ(out, untouched);
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    for (const Kind kind : kKinds) {
        EXPECT_EQ(CreateLocalizer(kind, u"", culture, nullptr, nullptr), qor::rcInvalidArgument);
    }
}

TEST_F(ManagerTest, UnusableDirectoriesAreTracedAndLeaveTheProviderInUse) {
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    EXPECT_EQ(Init(tree.Path("none"), u"", listener), qor::rcUnspecifiedError);
    EXPECT_EQ(Init(tree.Path("b"), tree.Path("b/neutral/Locs/app.lt/x")), qor::rcUnspecifiedError);
    allocator.failAt = 1;
    EXPECT_EQ(Init(tree.Path("b")), qor::rcUnspecifiedError);
    EXPECT_EQ(Get(*MakeLocalizer(u"app"), u"own"), u"a");
    services->tracer->throws = true;
    EXPECT_EQ(Init(tree.Path("none")), qor::rcUnspecifiedError);
}

TEST_F(ManagerTest, LocalizerThatCannotBeMadeIsTracedWithItsScopeAndCulture) {
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    ILocalizer* out = untouched;
    for (const auto& [kind, culture] : {std::pair(Kind::File, MakeCulture(26, "", "v")),
                                        {Kind::Buffer, MakeCulture(13)},
                                        {Kind::Buffers, MakeCulture(99, "r", "v")}}) {
        allocator.failAt = 1;
        EXPECT_EQ(CreateLocalizer(kind, u"\u20AC\U0001F600", culture, nullptr, &out),
                  qor::rcUnspecifiedError);
    }
    EXPECT_EQ(out, untouched);
}

TEST_F(ManagerTest, SettingsInitialiseThroughTheOtherInterface) {
    qor::objptr_t<IConstruct> construct;
    ASSERT_EQ(
        manager->QueryInterface(IConstruct::InterfaceId, reinterpret_cast<void**>(construct.Ref())),
        qor::rcOk);
    EXPECT_EQ(construct->Construct(nullptr), qor::rcInvalidArgument);
    LocalizationManagerSettings settings{u"", qor::string16_t(tree.Path("a"))};
    EXPECT_EQ(construct->Construct(&settings), qor::rcInvalidState);
    settings.root = tree.Path("b");
    EXPECT_EQ(construct->Construct(&settings), qor::rcOk);
    EXPECT_EQ(Get(*MakeLocalizer(u"app"), u"own"), u"a");
}

TEST_F(ManagerTest, ListenerIsHeldUntilReplaced) {
    const auto second = MakeListener();
    ASSERT_EQ(Init(tree.Path("a"), u"", listener), qor::rcOk);
    const auto early = MakeLocalizer(u"app");
    EXPECT_EQ(References(*listener), 3U);
    ASSERT_EQ(Init(tree.Path("a"), u"", second), qor::rcOk);
    EXPECT_EQ(References(*listener), 2U);
    EXPECT_EQ(References(*second), 2U);

    qor::string16_t text;
    EXPECT_EQ(early->GetString(u"x", text), qor::rcUnspecifiedError);
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);  // with a listener of its own
    EXPECT_EQ(References(*second), 1U);
    EXPECT_EQ(MakeLocalizer(u"app")->GetString(u"y", text), qor::rcUnspecifiedError);
    services->tracer->throws = true;
    EXPECT_EQ(MakeLocalizer(u"app")->GetString(u"y", text), qor::rcUnspecifiedError);
}

TEST_F(ManagerTest, ListenersAreCalledOutsideOfAllLocks) {
    std::future<qor::result_t> asked;
    const auto asking = Make<host::ErrorListener>([&](auto, auto) {
        asked = std::async(std::launch::async,
                           [&] { return MakeLocalizer(u"app")->HasString(u"own"); });
        EXPECT_EQ(asked.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    });
    ASSERT_EQ(Init(tree.Path("a"), u"", asking), qor::rcOk);
    EXPECT_EQ(MakeLocalizer(u"none")->HasString(u"own"), qor::rcUnspecifiedError);
    EXPECT_EQ(asked.get(), qor::rcOk);
}

TEST_F(ManagerTest, LocalizersOutliveItAndStreamsOutliveBoth) {
    tree.Write("a/neutral/app/file", "bytes");
    params->Set("p", "a text that needs memory");
    ASSERT_EQ(Init(tree.Path("a"), u"", listener), qor::rcOk);
    qor::objptr_t<qor::IIO> stream;
    {
        const auto localizer = MakeLocalizer(u"app");
        EXPECT_EQ(References(*localizer), 1U);
        EXPECT_EQ(References(*params), 2U);
        manager = nullptr;
        EXPECT_EQ(References(*listener), 2U);
        EXPECT_EQ(Get(*localizer, u"param"), u"a text that needs memory");
        EXPECT_EQ(References(*params), 2U);
        ASSERT_EQ(localizer->GetStream(u"file", stream.Ref()), qor::rcOk);
    }
    EXPECT_EQ(References(*params) + References(*listener), 2U);
    ExpectHeldBy(1);
    char bytes[8];
    std::uint32_t read = 0;
    EXPECT_EQ(stream->Read(bytes, 8, &read), qor::rcOk);
    EXPECT_EQ(std::string(bytes, read), "bytes");
}

TEST_F(ManagerTest, LocalizersKeepACultureInTheMemoryOfItsStrings) {
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    const auto memory = Make<FakeAllocator>();
    qor::objptr_t<ILocalizer> localizer;
    const Culture culture{
        Language::English, {"a region of some length", qor::Allocator<char>(memory.get())}, {}};
    EXPECT_EQ(CreateLocalizer(Kind::Buffers, u"", culture, nullptr, localizer.Ref()), qor::rcOk);
    EXPECT_EQ(memory->Live(), 2);
}

TEST_F(ManagerTest, CommonTextsAreParsedOncePerRememberedCulture) {
    const Culture culture = MakeCulture(8, "au");
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    EXPECT_EQ(Get(*MakeLocalizer(u"app", culture), u"common"), u"a");
    tree.Write("a/neutral/Locs/common.lt", "Common = 'new'");

    ASSERT_EQ(Init(tree.Path("b")), qor::rcOk);  // forgets no common texts
    const auto renewed = MakeLocalizer(u"app", culture);
    EXPECT_EQ(Get(*renewed, u"own") + Get(*renewed, u"common"), u"ba");
    ASSERT_EQ(Init(tree.Path("a")), qor::rcOk);
    const auto late = MakeLocalizer(u"app", culture);
    EXPECT_EQ(Get(*MakeLocalizer(u"app", MakeCulture(8, "au", "v")), u"common"), u"new");
    EXPECT_EQ(Get(*MakeLocalizer(u"app", culture), u"common"), u"new");
    EXPECT_EQ(Get(*late, u"common"), u"a");  // keeps the texts that it was made with

    tree.Write("a/neutral/Locs/common.lt", "; nothing yet");
    const auto early = MakeLocalizer(u"app");
    EXPECT_EQ(Get(*early, u"own"), u"a");
    tree.Write("a/neutral/Locs/common.lt", "Common = 'before' Fault =");
    EXPECT_EQ(MakeLocalizer(u"app")->HasString(u"own"), qor::rcUnspecifiedError);
    tree.Write("a/neutral/Locs/common.lt", "Common = 'mended' Fault = ''");
    EXPECT_EQ(Get(*MakeLocalizer(u"app"), u"common"), u"before");  // is not loaded again
    EXPECT_EQ(early->HasString(u"common"), qor::rcUnspecifiedError);
}

}  // namespace
