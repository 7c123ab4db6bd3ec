// What a localizer answers, and what it reports when it cannot.
#include <sys/file.h>
#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "AbiHost.h"

namespace {

using namespace abi_host;

/// Makes a file that nobody else may open meanwhile.
std::shared_ptr<std::FILE> LockedFile(const std::filesystem::path& path) {
    std::shared_ptr<std::FILE> file(std::fopen(path.c_str(), "w"), std::fclose);
    EXPECT_EQ(flock(fileno(file.get()), LOCK_EX), 0);
    return file;
}

class LocalizerTest : public AbiTest {
protected:
    LocalizerTest() {
        tree.Write("neutral/Locs/common.lt", "Brand = 'Acme' Both = 'common' Lone = 'by ' + BRAND");
        tree.Write("neutral/Locs/app.lt",
                   "; texts\n"
                   "Where = 'neutral' Both = 'scope'\n"
                   "Long = Lone + ', ' + Both Files = {$n: 'one', 'other'}\n"
                   "Count = 'You have ' + $n + ' ' + {$n: 'file', 'files' + $Who}");
        tree.Write("pt-br/Locs/app.lt", "Where = 'pt-br' Files = {$n: 'one', 'other'}");
        tree.Write("ru/Locs/app.lt", "Files = {$n: 'one', 'few', 'many'}");
        tree.Write("en/au/Plural.rule", "n == 1; n > 1;");
        tree.Write("alt/neutral/Locs/replaced.lt", "Where = 'alternative'");
        tree.Write("pt-br/Locs/replaced.lt", "Where = 'root'");
        EXPECT_EQ(manager.InitEx(tree.Path() + u"/", tree.Path("alt"), &listener), kOk);
        resolver.values[u"Who"] = u"Ada";
    }

    void ExpectReport(const std::string& expected) {
        const std::vector<std::string> errors = listener.Take();
        ASSERT_EQ(errors.size(), 1U) << expected;
        EXPECT_TRUE(Matches(InTree("localization manager error: " + expected), errors[0]));
    }

    void ExpectNoText(const Localizer& localizer, const String16& key, const std::string& report) {
        String16 text(u"before");
        EXPECT_EQ(localizer.GetString(key, text), kUnspecifiedError) << report;
        EXPECT_EQ(text.Text(), u"before");
        ExpectReport(report);
    }
};

TEST_F(LocalizerTest, TextsComeFromTheMostSpecificSource) {
    const struct {
        Culture culture;
        const char16_t* scope;
        const char16_t* key;
        const char16_t* n;
        const char16_t* text;
    } cases[] = {{Culture(26), u"app", u"Where", u"", u"neutral"},
                 {Culture(26, "br", "x"), u"app", u"WHERE", u"", u"pt-br"},
                 {Culture(26, "br"), u"replaced", u"where", u"", u"alternative"},
                 {Culture(8), u"app", u"Brand", u"", u"Acme"},
                 {Culture(8), u"app", u"Both", u"", u"scope"},
                 {Culture(8), u"app", u"Long", u"", u"by Acme, scope"},
                 {Culture(8), u"app", u"Files", u"+1", u"one"},
                 {Culture(8, "au"), u"app", u"Files", u"2", u"other"},
                 {Culture(26, "br"), u"app", u"Files", u"0", u"one"},
                 {Culture(28), u"app", u"Files", u"104", u"few"},
                 {Culture(28), u"app", u"Files", u"-1", u"many"}};
    String16 text;
    for (const auto& c : cases) {
        resolver.values[u"n"] = c.n;
        const Localizer localizer = MakeLocalizer(c.scope, c.culture);
        EXPECT_EQ(localizer.GetString(c.key, text), kOk);
        EXPECT_EQ(text.Text(), c.text);
        EXPECT_EQ(localizer.HasString(c.key), kOk);
        EXPECT_EQ(localizer.HasString(u"nothing"), kUnspecifiedError);
    }
}

TEST_F(LocalizerTest, ResolveListenerHearsPartsBeforeWholes) {
    using Heard = std::vector<ResolveListener::Heard>;
    const Localizer localizer = MakeLocalizer(u"app");
    resolver.values[u"n"] = u"3";
    ResolveListener heard;
    String16 text;
    ASSERT_EQ(localizer.GetResolvedString(u"COUNT", text, &heard), kOk);
    EXPECT_EQ(text.Text(), u"You have 3 filesAda");
    EXPECT_EQ(heard.Take(), Heard({{1, u"", u"n", u"3"},
                                   {1, u"", u"Who", u"Ada"},
                                   {2, u"", u"n", u"filesAda"},
                                   {0, u"app", u"COUNT", u"You have 3 filesAda"}}));
    ASSERT_EQ(localizer.GetResolvedString(u"Lone", text, &heard), kOk);
    EXPECT_EQ(heard.Take(), Heard({{0, u"common", u"lone", u"by Acme"}}));
    ASSERT_EQ(localizer.GetResolvedString(u"Lone", text, nullptr), kOk);
    heard.throws = true;
    EXPECT_EQ(localizer.GetResolvedString(u"Both", text, &heard), kUnspecifiedError);
    EXPECT_EQ(text.Text(), u"by Acme");
    ExpectReport("cannot get string for key: Both, error: host failed");
}

TEST_F(LocalizerTest, FaultOfOneKeyIsReported) {
    tree.Write("neutral/Locs/keys.lt",
               "Hello = $Nobody Three = {$n: 'a', 'b', 'c'} Two = {$n: 'a', "
               "'b'} Nested = {$n: 'a', Two}");
    const std::tuple<const char16_t*, const char16_t*, std::string> cases[] = {
        {u"1", u"Title", "Title, error: Key 'title' not found"},
        {u"1", u"", ", error: Key '' not found"},
        {u"1", u"\u00E9\U0001F600",
         "\u00E9\xED\xA0\xBD\xED\xB8\x80, error: Key '\u00E9\xED\xA0\xBD\xED\xB8\x80' not found"},
        {u"1", u"HELLO",
         "HELLO, error: Contract Violation! Violated argument 'paramResolver_->Resolve(in, "
         "result)' "
         "at <function> at source\\LocalizationManager_copy:265Description: external resolver "
         "cannot "
         "resolve param: Nobody, error: Not found"},
        {u"1", u"Three",
         "Three, error: Invalid plural form count (expected: 2, got: 3, discriminator: n)"},
        {u"2", u"Nested", "Nested, error: Key reference found (two). Run compiler first"},
        {u"-1", u"Two",
         "Two, error: Cannot find rule entry with id 'en-au' and discriminator value -1"},
        {u" 5", u"Two",
         "Two, error: bad lexical cast: source type value could not be interpreted as target"}};
    const Localizer localizer = MakeLocalizer(u"keys", Culture(8, "au"));
    for (const auto& [n, key, report] : cases) {
        resolver.values[u"n"] = n;
        ExpectNoText(localizer, key, "cannot get string for key: " + report);
    }
    resolver.throws = true;
    ExpectNoText(localizer, u"Two", "cannot get string for key: Two, error: host failed");
    resolver.throws = false;
    resolver.values[u"n"] = u"1";
    EXPECT_EQ(localizer.Get(u"Two"), u"a");

    Localizer alone;
    String16 text;
    ASSERT_EQ(manager.CreateLocalizer(u"keys", Culture(), nullptr, alone.Out()), kOk);
    EXPECT_EQ(alone.GetString(u"Hello", text), kUnspecifiedError);
    EXPECT_NE(listener.Take().at(0).find("Nobody"), std::string::npos);
}

TEST_F(LocalizerTest, FaultOfASourceIsReportedAtEveryRequest) {
    tree.Write("neutral/Locs/equals.lt", "a = 'x'\r\n\tKey 'value'\nb = 'y'");
    tree.Write("neutral/Locs/cycle.lt", "a = b b = c c = B");
    tree.Write("pl/Plural.rule", "n == 1");
    tree.Write("neutral/Locs/directory.lt/file", "");
    ASSERT_EQ(mkfifo((tree.Root() / "neutral/Locs/fifo.lt").c_str(), 0600), 0);
    const auto locked = LockedFile(tree.Root() / "neutral/Locs/locked.lt");

    const std::string cannotOpen =
        " culture de-, error: Contract Violation! Violated argument "
        "'file.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
        "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, qor::file_flags::OpenExisting, "
        "0)' at <function> at src\\file\\FileStream:107Description: Cannot open file, error: ";
    const struct {
        const char16_t* scope;
        Culture culture;
        std::string report;
    } cases[] = {
        {u"none", Culture(13), "none culture de-, error: cannot find localization file 'none.lt'"},
        {u"app", Culture(99),
         "app culture Unsupported language 99-, error: Unsupported language 99"},
        {u"equals", Culture(8, "au", "v"),
         "equals culture en-au-v, error: parse error at file <root>/neutral/Locs/equals.lt line 2 "
         "column 9\n\"\tKey 'value'\"\n         ^- expecting \"=\" here or one of previous lines "
         "miss termination '(qoute)"},
        {u"app", Culture(27),
         "app culture pl-, error: parse error at file <root>/pl/Plural.rule line 1 column 7\n"
         "\"n == 1\"\n       ^- expecting \";\" here"},
        {u"cycle", Culture(13), "cycle culture de-, error: Cyclic reference found:a->(b->c->b)"},
        {u"directory", Culture(13), "directory" + cannotOpen + "Access denied"},
        {u"fifo", Culture(13), "fifo" + cannotOpen + "Access denied"},
        {u"locked", Culture(13), "locked" + cannotOpen + "Sharing violation"},
    };
    for (const auto& c : cases) {
        const std::string report = "cannot create string localizer for scope " + c.report;
        const Localizer localizer = MakeLocalizer(c.scope, c.culture);
        ExpectNoText(localizer, u"a", report);
        EXPECT_EQ(localizer.HasString(u"a"), kUnspecifiedError);
        ExpectReport(report);
    }
}

TEST_F(LocalizerTest, ListenerThatThrowsChangesNoResult) {
    String16 text;
    listener.throws = true;
    EXPECT_EQ(MakeLocalizer(u"app").GetString(u"none", text), kUnspecifiedError);
    EXPECT_EQ(MakeLocalizer(u"none").HasString(u"none"), kUnspecifiedError);
    EXPECT_EQ(listener.Take().size(), 2U);
    ASSERT_EQ(manager.Init(tree.Path()), kOk);
    services.tracer.throws = true;
    EXPECT_EQ(MakeLocalizer(u"none").GetString(u"none", text), kUnspecifiedError);
}

TEST_F(LocalizerTest, PathsAreAnsweredWithoutTexts) {
    for (const char* name : {"de/img/logo.png", "neutral/img/logo.png", "neutral/img/sub/x"}) {
        tree.Write(name, "");
    }
    const std::tuple<std::uint32_t, const char16_t*, const char*> cases[] = {
        {13, u"logo.png", "de/img/logo.png"},
        {12, u"logo.png", "neutral/img/logo.png"},
        {13, u"sub\\x", "neutral/img/sub/x"},
        {13, u"sub", "neutral/img/sub"},
        {13, u"none.png", nullptr}};
    String16 path;
    for (const auto& [language, key, expected] : cases) {
        const Localizer localizer = MakeLocalizer(u"img", Culture(language));
        path.Assign(u"before");
        EXPECT_EQ(localizer.GetPath(key, path), expected != nullptr ? kOk : kNotFound);
        EXPECT_EQ(path.Text(), expected != nullptr ? tree.Path(expected) : u"before");
        EXPECT_EQ(localizer.HasResource(key), expected != nullptr ? kOk : kUnspecifiedError);
        EXPECT_EQ(localizer.GetPath(u"", path), kInvalidArgument);
    }
    const Localizer unsupported = MakeLocalizer(u"img", Culture(38));
    EXPECT_EQ(unsupported.GetPath(u"logo.png", path), kUnspecifiedError);
    EXPECT_EQ(path.Text(), u"before");
    ExpectReport("cannot get path for key: logo.png, error: Unsupported language 38");
    EXPECT_THROW(unsupported.HasResource(u"logo.png"), std::range_error);
}

TEST_F(LocalizerTest, StreamThatCannotBeOpenedIsReported) {
    const std::string begin = "cannot open binary resource file stream for key: ";
    const std::string cannotOpen =
        ", error: Contract Violation! Violated argument "
        "'file_.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
        "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, qor::file_flags::OpenExisting, "
        "0)' at <function> at src/BinaryIO:26Description: Cannot open file, error: ";
    tree.Write("neutral/img/directory/x", "");
    const auto locked = LockedFile(tree.Root() / "neutral/img/locked");
    const Localizer localizer = MakeLocalizer(u"img");
    void* out = this;
    EXPECT_EQ(localizer.GetStream(u"locked", nullptr), kInvalidArgument);
    EXPECT_EQ(localizer.GetStream(u"none", &out), kNotFound);
    EXPECT_EQ(localizer.GetStream(u"locked", &out), kUnspecifiedError);
    ExpectReport(begin + "locked" + cannotOpen + "Sharing violation");
    EXPECT_EQ(localizer.GetStream(u"directory", &out), kUnspecifiedError);
    ExpectReport(begin + "directory" + cannotOpen + "Access denied");
    services.allocator.failAt = 1;
    EXPECT_EQ(localizer.GetStream(u"none", &out), kUnspecifiedError);
    ExpectReport(begin +
                 "none, error: Contract Violation! Violated argument 'qor::Object<BinaryIO>::"
                 "CreateInstance(GetServiceLocator(), stream.Ref())' at <function> at "
                 "source\\LocalizationManager_copy:116Description: cannot create BinaryIO, error: "
                 "Out of memory");
    EXPECT_EQ(services.tracer.Take().size(), 1U);
    EXPECT_EQ(out, this);
}

TEST_F(LocalizerTest, StreamReadsAndSeeks) {
    tree.Write("neutral/img/ten", "0123456789");
    Stream stream;
    ASSERT_EQ(MakeLocalizer(u"img").GetStream(u"ten", stream.Out()), kOk);
    char bytes[100] = {};
    std::uint32_t read = 77;
    EXPECT_EQ(stream.Read(bytes, 100, &read), kOk);
    EXPECT_EQ(std::string(bytes, read), "0123456789");
    EXPECT_EQ(stream.Read(bytes, 100, &read), kOk);
    EXPECT_EQ(read, 0U);
    const struct {
        std::int32_t origin;
        std::int64_t offset, position;
    } moves[] = {{2, 0, 10}, {7, 4, 4}, {1, -3, 1}, {0, 1LL << 40, 1LL << 40}, {2, -1, 9}};
    std::int64_t value = -1;
    for (const auto& move : moves) {
        EXPECT_EQ(stream.Seek(move.origin, move.offset, &value), kOk);
        EXPECT_EQ(value, move.position);
    }
    EXPECT_EQ(stream.Seek(1, -10, &value), Code(0x80070083));
    EXPECT_EQ(value, 9);
    EXPECT_EQ(stream.Seek(0, 3, nullptr), kOk);
    EXPECT_EQ(stream.Read(bytes, 2, &read), kOk);
    EXPECT_EQ(std::string(bytes, read), "34");
    EXPECT_EQ(stream.GetPosition(&value), kOk);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(stream.GetSize(&value), kOk);
    EXPECT_EQ(value, 10);
    for (const std::size_t slot : {4U, 8U, 9U}) {
        EXPECT_EQ(stream.Call(slot), kNotSupported);
    }
}

}  // namespace
