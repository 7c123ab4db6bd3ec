// Initialising the manager, and what its localizers share.
#include <filesystem>

#include "AbiHost.h"

namespace {

using namespace abi_host;

class ManagerTest : public AbiTest {
protected:
    ManagerTest() {
        tree.Write("a/neutral/Locs/app.lt", "Own = 'a'");
        tree.Write("a/neutral/Locs/common.lt", "Common = 'a'");
        tree.Write("b/neutral/Locs/app.lt", "Own = 'b'");
        tree.Write("b/neutral/Locs/common.lt", "Common = 'b'");
    }

    void ExpectTraced(const std::string& expected) {
        const Records records = services.tracer.Take();
        ASSERT_FALSE(records.empty()) << expected;
        EXPECT_EQ(records.back().first, 300U);
        EXPECT_TRUE(Matches(InTree(expected), records.back().second));
    }
};

TEST_F(ManagerTest, UninitialisedManagerMakesNoLocalizer) {
    void* out = this;
    EXPECT_EQ(manager.CreateLocalizer(u"app", Culture(), nullptr, nullptr), kInvalidArgument);
    EXPECT_EQ(manager.InitEx(u"", tree.Path("a"), &listener), kInvalidState);
    EXPECT_EQ(listener.References(), 1U);
    EXPECT_EQ(manager.CreateLocalizer(u"app", Culture(), nullptr, &out), kInvalidState);
    EXPECT_EQ(out, this);
}

TEST_F(ManagerTest, UnusableDirectoriesAreTracedAndLeaveTheProviderInUse) {
    const std::string begin =
        "localization manager error: cannot create file resource provider for ";
    const std::string check =
        "', error: Contract Violation! Violated argument 'qor::filesystem::IsDirectory(";
    const std::string where = "LocalizationUri)' at <function> at src\\File/FileResourceProvider:";
    ASSERT_EQ(manager.Init(tree.Path("a")), kOk);
    EXPECT_EQ(manager.InitEx(tree.Path("none"), u"", &listener), kUnspecifiedError);
    ExpectTraced(
        begin + "root='<root>/none' alternative='" + check + "root" + where +
        "112Description: root localization URI has to be directory, error: File not found");
    EXPECT_EQ(manager.Init(tree.Path("b"), tree.Path("a/neutral/Locs/app.lt/x")),
              kUnspecifiedError);
    ExpectTraced(begin + "root='<root>/b' alternative='<root>/a/neutral/Locs/app.lt/x" + check +
                 "alternative" + where +
                 "116Description: alternative localization URI has to be "
                 "directory or empty, error: Path not found");
    EXPECT_EQ(MakeLocalizer(u"app").Get(u"own"), u"a");
    services.allocator.failAt = 1;
    EXPECT_EQ(manager.Init(tree.Path("b")), kUnspecifiedError);
    ExpectTraced(begin +
                 "root='<root>/b' alternative='', error: Contract Violation! Violated argument "
                 "'qor::Object<ErrorListener>::CreateInstance(GetServiceLocator(), "
                 "errorListener_.Ref())' at <function> at source\\LocalizationManager_copy:466"
                 "Description: Cannot create internal tracer, error: Out of memory");
    services.tracer.throws = true;
    EXPECT_EQ(manager.Init(tree.Path("none")), kUnspecifiedError);
}

TEST_F(ManagerTest, LocalizerThatCannotBeMadeIsTracedWithItsCulture) {
    ASSERT_EQ(manager.Init(tree.Path("a")), kOk);
    const struct {
        Culture culture;
        const char* text;
    } cases[] = {{Culture(13), "de-"},
                 {Culture(8, "au"), "en-au"},
                 {Culture(26, "", "v"), "pt--v"},
                 {Culture(99, "r", "v"), "Unsupported language 99-r-v"}};
    for (const auto& c : cases) {
        services.allocator.failAt = 1;
        void* out = this;
        EXPECT_EQ(manager.CreateLocalizer(u"\u20AC\U0001F600", c.culture, nullptr, &out),
                  kUnspecifiedError);
        EXPECT_EQ(out, this);
        ExpectTraced(
            std::string("localization manager error: cannot create Localizer for scope "
                        "\xE2\x82\xAC\xED\xA0\xBD\xED\xB8\x80 culture ") +
            c.text +
            ", error: Contract Violation! Violated argument 'qor::Object<Localizer>::"
            "CreateInstance(GetServiceLocator(), localizer.Ref())' at <function> at "
            "source\\LocalizationManager_copy:563Description: Cannot create Localizer, error: Out "
            "of memory");
    }
}

TEST_F(ManagerTest, SettingsInitialiseThroughTheOtherInterface) {
    Object construct;
    ASSERT_EQ(manager.Call(2, kConstructId, construct.Out()), kOk);
    EXPECT_EQ(construct.Call(3, nullptr), kInvalidArgument);
    Settings settings{u"", tree.Path("a")};
    EXPECT_EQ(construct.Call(3, &settings), kInvalidState);
    settings.root.Assign(tree.Path("b"));
    EXPECT_EQ(construct.Call(3, &settings), kOk);
    EXPECT_EQ(MakeLocalizer(u"app").Get(u"own"), u"a");
}

TEST_F(ManagerTest, TextsFromMemoryTakeThePlaceOfFiles) {
    const Culture culture(13);
    const String16 prefix(u"x_");
    const String16 text(u"Own = Common + '!'");
    const String16 common(u"Common = 'memory'");
    ASSERT_EQ(manager.InitEx(tree.Path("a"), u"", &listener), kOk);
    Localizer localizer;
    ASSERT_EQ(manager.Call(6, &text, &culture, nullptr, localizer.Out()), kOk);
    EXPECT_EQ(localizer.Get(u"own"), u"a!");
    EXPECT_EQ(manager.Call(6, &text, &culture, nullptr, nullptr), kInvalidArgument);
    ASSERT_EQ(manager.Call(7, &prefix, &text, &common, &culture, nullptr, localizer.Out()), kOk);
    String16 own;
    EXPECT_EQ(localizer.GetResolvedString(u"own", own, nullptr), kOk);
    EXPECT_EQ(own.Text(), u"memory!");
    EXPECT_EQ(localizer.GetString(u"own", own), kNotImplemented);
    EXPECT_EQ(manager.Call(7, &prefix, &text, &common, &culture, nullptr, nullptr),
              kInvalidArgument);
}

TEST_F(ManagerTest, ListenerIsHeldUntilReplaced) {
    ErrorListener second;
    ASSERT_EQ(manager.InitEx(tree.Path("a"), u"", &listener), kOk);
    EXPECT_EQ(listener.References(), 2U);
    const Localizer early = MakeLocalizer(u"app");
    EXPECT_EQ(listener.References(), 3U);
    ASSERT_EQ(manager.InitEx(tree.Path("a"), u"", &second), kOk);
    EXPECT_EQ(listener.References(), 2U);
    EXPECT_EQ(second.References(), 2U);

    String16 text;
    EXPECT_EQ(early.GetString(u"x", text), kUnspecifiedError);
    EXPECT_EQ(listener.Take().size(), 1U);
    ASSERT_EQ(manager.Init(tree.Path("a")), kOk);  // with a listener of its own
    EXPECT_EQ(second.References(), 1U);
    const std::string key(600, 'x');  // more than a record holds at first
    EXPECT_EQ(MakeLocalizer(u"app").GetString(std::u16string(key.begin(), key.end()), text),
              kUnspecifiedError);
    ExpectTraced("localization manager error: cannot get string for key: " + key +
                 ", error: Key '" + key + "' not found");
}

TEST_F(ManagerTest, CommonTextsAreParsedOncePerRememberedCulture) {
    const Culture culture(8, "au");
    ASSERT_EQ(manager.Init(tree.Path("a")), kOk);
    const Localizer before = MakeLocalizer(u"app", culture);
    EXPECT_EQ(before.Get(u"common"), u"a");
    tree.Write("a/neutral/Locs/common.lt", "Common = 'new'");

    ASSERT_EQ(manager.Init(tree.Path("b")), kOk);  // forgets no common texts
    const Localizer renewed = MakeLocalizer(u"app", culture);
    EXPECT_EQ(renewed.Get(u"own") + renewed.Get(u"common"), u"ba");
    ASSERT_EQ(manager.Init(tree.Path("a")), kOk);
    const Localizer late = MakeLocalizer(u"app", culture);
    EXPECT_EQ(MakeLocalizer(u"app", Culture(8, "au", "v")).Get(u"common"), u"new");
    EXPECT_EQ(MakeLocalizer(u"app", culture).Get(u"common"), u"new");
    EXPECT_EQ(late.Get(u"common"), u"a");  // keeps the texts that it was made with
}

TEST_F(ManagerTest, CommonSourceThatBreaksLeavesTheEntriesBeforeTheFault) {
    ASSERT_EQ(manager.InitEx(tree.Path("a"), u"", &listener), kOk);
    std::filesystem::remove(tree.Root() / "a/neutral/Locs/common.lt");
    const Localizer localizer = MakeLocalizer(u"app");
    EXPECT_EQ(localizer.HasString(u"own"), kUnspecifiedError);
    tree.Write("a/neutral/Locs/common.lt", "First = 'kept' Second");
    EXPECT_EQ(localizer.HasString(u"own"), kUnspecifiedError);
    EXPECT_EQ(localizer.Get(u"first"), u"kept");
    EXPECT_EQ(listener.Take().size(), 2U);
}

}  // namespace
