// What every kind of localizer answers, and reports when it cannot.
#include "AbiHost.h"

namespace {

using namespace abi_host;

/// The parameter: which operation of the manager makes the localizer, from a file or from memory.
class LocalizerConformanceTest : public AbiTest, public testing::WithParamInterface<ManagerSlot> {
protected:
    LocalizerConformanceTest() {
        tree.Write("neutral/Locs/common.lt", "Brand = 'Acme' Both = 'common' Lone = 'by ' + BRAND");
        tree.Write("pl/Plural.rule", "n == 1");
        EXPECT_EQ(Init(tree.Path(), tree.Path(), &listener), kOk);
        resolver.values[u"Who"] = u"Ada";
        if (GetParam() == kFromFiles) {
            replaced.emplace_back("<root>/neutral/Locs/app.lt|\\bapp\\b", "<scope>");
        } else {
            replaced.emplace_back(GetParam() == kFromBuffers ? "x_<uuid>" : "<uuid>", "<scope>");
        }
        replaced.emplace_back(GetParam() == kFromBuffers ? ":400D" : ":265D", ":<line>D");
    }

    Localizer Make(const std::string& source, const Culture& culture = Culture(),
                   ParamResolver* params = nullptr) {
        const std::u16string text(source.begin(), source.end());
        tree.Write("neutral/Locs/app.lt", GetParam() == kFromFiles ? source : "never read");
        Localizer made;
        EXPECT_EQ(CreateLocalizer(GetParam(), GetParam() == kFromFiles ? u"app" : text, culture,
                                  params, made.Out()),
                  kOk);
        return made;
    }

    void ExpectNoText(const Localizer& localizer, const String16& key) {
        String16 text(u"before");
        EXPECT_EQ(localizer.Call(kGetResolved, key, &text, nullptr), kUnspecifiedError);
        EXPECT_EQ(text.Text(), u"before");
    }
};

INSTANTIATE_TEST_SUITE_P(FileBufferAndBuffers, LocalizerConformanceTest,
                         testing::Values(kFromFiles, kFromBuffer, kFromBuffers));

TEST_P(LocalizerConformanceTest, TextsOfTheScopeAndTheCommonOnesAreResolvedForTheCulture) {
    tree.Write("en/au/Plural.rule", "n == 1; n > 1;");
    const std::string source =
        "Both = 'scope' Long = Lone + ', ' + Both Two = {$n: 'one', 'other'} "
        "Three = {$n: 'one', 'few', 'many'}";
    const struct {
        Culture culture;
        const char16_t* key;
        const char16_t* n;
        const char16_t* text;
    } cases[] = {
        {Culture(8), u"BRAND", u"", u"Acme"},      {Culture(8), u"Long", u"", u"by Acme, scope"},
        {Culture(8), u"Two", u"+1", u"one"},       {Culture(8, "au"), u"Two", u"2", u"other"},
        {Culture(26, "br"), u"Two", u"0", u"one"}, {Culture(28), u"Three", u"104", u"few"},
        {Culture(28), u"Three", u"-1", u"many"}};
    for (const auto& c : cases) {
        resolver.values[u"n"] = c.n;
        const Localizer localizer = Make(source, c.culture, &resolver);
        EXPECT_EQ(localizer.Get(c.key), c.text);
        EXPECT_EQ(localizer.Call(kHasString, String16(c.key)), kOk);
        EXPECT_EQ(localizer.Call(kHasString, String16(u"nothing")), kUnspecifiedError);
    }
    EXPECT_EQ(Make("").Get(u"brand"), u"Acme");
}

TEST_P(LocalizerConformanceTest, ResolveListenerHearsPartsBeforeWholes) {
    const Localizer localizer =
        Make("Count = 'You have ' + $n + {$n: ' file', ' files' + $Who}", Culture(), &resolver);
    resolver.values[u"n"] = u"3";
    ResolveListener heard;
    String16 text;
    ASSERT_EQ(localizer.Call(kGetResolved, String16(u"COUNT"), &text, &heard), kOk);
    EXPECT_EQ(text.Text(), u"You have 3 filesAda");
    EXPECT_EQ(Shown(heard.Take()),
              "1 |n|3\n1 |Who|Ada\n2 |n| filesAda\n0 <scope>|COUNT|You have 3 filesAda\n");
    ASSERT_EQ(localizer.Call(kGetResolved, String16(u"Lone"), &text, &heard), kOk);
    EXPECT_EQ(heard.Take(), "0 common|lone|by Acme\n");
    heard.throws = true;
    EXPECT_EQ(localizer.Call(kGetResolved, String16(u"Both"), &text, &heard), kUnspecifiedError);
    EXPECT_EQ(text.Text(), u"by Acme");
}

TEST_P(LocalizerConformanceTest, FaultOfOneKeyIsReported) {
    const std::string source = "Hello = $Nobody Two = {$n: 'a', 'b'} Nested = {$n: 'a', Two}";
    const Localizer localizer = Make(source, Culture(), &resolver);
    resolver.values[u"n"] = u"2";
    ExpectNoText(localizer, u"\u00E9\U0001F600");
    ExpectNoText(localizer, u"HELLO");
    ExpectNoText(localizer, u"Nested");
    resolver.values[u"n"] = u" 5";
    ExpectNoText(localizer, u"Two");
    resolver.throws = true;
    ExpectNoText(localizer, u"Two");
    resolver.throws = false;
    resolver.values[u"n"] = u"1";
    EXPECT_EQ(localizer.Get(u"Two"), u"a");
    ExpectNoText(Make(source), u"Hello");
}

TEST_P(LocalizerConformanceTest, FaultOfASourceIsReportedAtEveryRequest) {
    const struct {
        std::string source;
        Culture culture;
    } cases[] = {{"a = 'x'\r\n\tKey 'value'\nb = 'y'", Culture(8, "au", "v")},
                 {"a = b b = c c = B", Culture(13)},
                 {"", Culture(99)},
                 {"", Culture(27)}};  // whose rules are faulty
    for (const auto& [source, culture] : cases) {
        const Localizer localizer = Make(source, culture);
        ExpectNoText(localizer, u"a");
        EXPECT_EQ(localizer.Call(kHasString, String16(u"a")), kUnspecifiedError);
    }
}

TEST_P(LocalizerConformanceTest, ListenerThatThrowsChangesNoResult) {
    listener.throws = true;
    ExpectNoText(Make(""), u"none");
    ExpectNoText(Make("?"), u"none");
}

}  // namespace
