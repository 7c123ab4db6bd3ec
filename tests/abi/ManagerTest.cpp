// Initialising the manager, and what its localizers share.
#include <stdexcept>

#include "AbiHost.h"
#include "ErrorText.h"

namespace {

using namespace abi_host;

class ManagerTest : public AbiTest {
protected:
    ManagerTest() {
        for (const std::string name : {"a", "b"}) {
            tree.Write(name + "/neutral/Locs/app.lt", "Own = '" + name + "'");
            tree.Write(name + "/neutral/Locs/common.lt", "Common = '" + name + "'");
        }
    }
};

TEST_F(ManagerTest, UninitialisedManagerMakesNoLocalizer) {
    void* out = this;
    EXPECT_EQ(CreateLocalizer(kFromFiles, u"", Culture(), nullptr, nullptr), kInvalidArgument);
    EXPECT_EQ(Init(u"", tree.Path("a"), &listener), kInvalidState);
    EXPECT_EQ(listener.References(), 1U);
    EXPECT_EQ(CreateLocalizer(kFromFiles, u"app", Culture(), nullptr, &out), kInvalidState);
    for (const ManagerSlot slot : {kFromBuffer, kFromBuffers}) {
        const auto create = [&, slot = slot] {
            CreateLocalizer(slot, u"a = 'x'", Culture(), nullptr, &out);
        };
        EXPECT_EQ(Shown(lm_test::ErrorText<std::runtime_error>(create)),
                  "Contract Violation! Violated argument 'resourceProvider_' at <function> at "
                  "src\\File/buffer_resource_provider:25Description: unexpected null pointer");
        EXPECT_EQ(out, this);
    }
    ASSERT_EQ(Init(tree.Path("a")), kOk);
    for (const ManagerSlot slot : {kFromFiles, kFromBuffer, kFromBuffers}) {
        EXPECT_EQ(CreateLocalizer(slot, u"", Culture(), nullptr, nullptr), kInvalidArgument);
    }
}

TEST_F(ManagerTest, UnusableDirectoriesAreTracedAndLeaveTheProviderInUse) {
    ASSERT_EQ(Init(tree.Path("a")), kOk);
    EXPECT_EQ(Init(tree.Path("none"), u"", &listener), kUnspecifiedError);
    EXPECT_EQ(Init(tree.Path("b"), tree.Path("b/neutral/Locs/app.lt/x")), kUnspecifiedError);
    EXPECT_EQ(MakeLocalizer(u"app").Get(u"own"), u"a");
    services.allocator.failAt = 1;
    EXPECT_EQ(Init(tree.Path("b")), kUnspecifiedError);
    services.tracer.throws = true;
    EXPECT_EQ(Init(tree.Path("none")), kUnspecifiedError);
}

TEST_F(ManagerTest, LocalizerThatCannotBeMadeIsTracedWithItsScopeAndCulture) {
    ASSERT_EQ(Init(tree.Path("a")), kOk);
    const struct {
        ManagerSlot slot;
        Culture culture;
    } cases[] = {{kFromFiles, Culture(26, "", "v")},
                 {kFromBuffer, Culture(13)},
                 {kFromBuffers, Culture(99, "r", "v")}};
    for (const auto& [slot, culture] : cases) {
        services.allocator.failAt = 1;
        void* out = this;
        EXPECT_EQ(CreateLocalizer(slot, u"\u20AC\U0001F600", culture, nullptr, &out),
                  kUnspecifiedError);
        EXPECT_EQ(out, this);
    }
}

TEST_F(ManagerTest, SettingsInitialiseThroughTheOtherInterface) {
    Object construct;
    ASSERT_EQ(manager.Call(2, kConstructId, construct.Out()), kOk);
    EXPECT_EQ(construct.Call(3, nullptr), kInvalidArgument);
    Settings settings{u"", tree.Path("a")};
    EXPECT_EQ(construct.Call(3, settings), kInvalidState);
    settings.root.Assign(tree.Path("b"));
    EXPECT_EQ(construct.Call(3, settings), kOk);
    EXPECT_EQ(MakeLocalizer(u"app").Get(u"own"), u"a");
}

TEST_F(ManagerTest, ListenerIsHeldUntilReplaced) {
    ErrorListener second;
    ASSERT_EQ(Init(tree.Path("a"), u"", &listener), kOk);
    const Localizer early = MakeLocalizer(u"app");
    EXPECT_EQ(listener.References(), 3U);
    ASSERT_EQ(Init(tree.Path("a"), u"", &second), kOk);
    EXPECT_EQ(listener.References(), 2U);
    EXPECT_EQ(second.References(), 2U);

    String16 text;
    EXPECT_EQ(early.Call(kGetString, String16(u"x"), &text), kUnspecifiedError);
    ASSERT_EQ(Init(tree.Path("a")), kOk);  // with a listener of its own
    EXPECT_EQ(second.References(), 1U);
    EXPECT_EQ(MakeLocalizer(u"app").Call(kGetString, String16(u"y"), &text), kUnspecifiedError);
    services.tracer.throws = true;
    EXPECT_EQ(MakeLocalizer(u"app").Call(kGetString, String16(u"y"), &text), kUnspecifiedError);
}

TEST_F(ManagerTest, CommonTextsAreParsedOncePerRememberedCulture) {
    const Culture culture(8, "au");
    ASSERT_EQ(Init(tree.Path("a")), kOk);
    EXPECT_EQ(MakeLocalizer(u"app", culture).Get(u"common"), u"a");
    tree.Write("a/neutral/Locs/common.lt", "Common = 'new'");

    ASSERT_EQ(Init(tree.Path("b")), kOk);  // forgets no common texts
    const Localizer renewed = MakeLocalizer(u"app", culture);
    EXPECT_EQ(renewed.Get(u"own") + renewed.Get(u"common"), u"ba");
    ASSERT_EQ(Init(tree.Path("a")), kOk);
    const Localizer late = MakeLocalizer(u"app", culture);
    EXPECT_EQ(MakeLocalizer(u"app", Culture(8, "au", "v")).Get(u"common"), u"new");
    EXPECT_EQ(MakeLocalizer(u"app", culture).Get(u"common"), u"new");
    EXPECT_EQ(late.Get(u"common"), u"a");  // keeps the texts that it was made with

    tree.Write("a/neutral/Locs/common.lt", "; nothing yet");
    const Localizer early = MakeLocalizer(u"app");
    EXPECT_EQ(early.Get(u"own"), u"a");
    tree.Write("a/neutral/Locs/common.lt", "Common = 'before' Fault =");
    EXPECT_EQ(MakeLocalizer(u"app").Call(kHasString, String16(u"own")), kUnspecifiedError);
    tree.Write("a/neutral/Locs/common.lt", "Common = 'mended' Fault = ''");
    EXPECT_EQ(MakeLocalizer(u"app").Get(u"common"), u"before");  // is not loaded again
    EXPECT_EQ(early.Call(kHasString, String16(u"common")), kUnspecifiedError);
}

}  // namespace
