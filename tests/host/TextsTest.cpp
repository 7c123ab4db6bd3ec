// What a program's code gets from its texts.
#include <limits>

#include "ErrorText.h"
#include "HostTree.h"

namespace {

using namespace lm_test;

class TextsTest : public HostTree {
protected:
    TextsTest() {
        files.Write(
            "en/Locs/main.lt",
            "Photos = {$count: 'one photo', $count + ' photos'} + ' in ' + $album "
            "Only.English = 'English' Invited = $who + ' came' Invited._female = 'she came' "
            "Hello = 'Hi ' + $who "
            "Forms = {$count: 'one'}");
        files.Write("de/Locs/main.lt",
                    "Photos = $count + ' Fotos in ' + $album "
                    "Invited = 'kam' Invited._other = 'kamen'");
        files.Write("en/main/logo.png", "");
    }
};

TEST_F(TextsTest, TakesParametersWithTheCall) {
    const host::Texts texts = Open("en");
    const std::string album = "R\u00fcgen \U0001F600";
    EXPECT_EQ(texts("Photos", {{"count", 1}, {"album", album}}), "one photo in " + album);
    EXPECT_EQ(
        texts("PHOTOS", {{"album", "a"}, {"count", std::numeric_limits<std::int64_t>::min()}}),
        "-9223372036854775808 photos in a");
    // A name that is part of another one, a surplus one, one that comes twice.
    const std::string english = texts("Only.English");
    const std::vector<host::Param> given{
        {"coun", "x"}, {"countt", "y"}, {"count", "2"}, {"album", english}, {"count", 3}};
    EXPECT_EQ(texts("Photos", given), "2 photos in English");
    // Longer than what is kept on the stack, on the way in and out.
    for (const std::size_t size : {127U, 129U, 255U, 257U, 511U, 513U, 70'000U}) {
        const std::string name = std::string(size - 2, 'n') + "\u00e4";
        EXPECT_EQ(texts("Invited", {{"who", name}}), name + " came");
    }
    EXPECT_EQ(
        texts("Photos", {{"count", std::numeric_limits<std::uint64_t>::max()}, {"album", ""}}),
        "Photos");  // no number that plural forms take
    EXPECT_NE(TakeReports().find("bad lexical cast"), std::string::npos);
}

TEST_F(TextsTest, CallsNestInWhatIsShownForMissingTexts) {
    host::TreeSettings settings = Settings();
    std::optional<host::Texts> texts;
    settings.whenMissing = [&texts](const host::TextProblem& problem) {
        return problem.key == "Outer" ? (*texts)("Photos", {{"count", 7}, {"album", "inner"}})
                                      : "no " + problem.key;
    };
    texts = Open("en", settings);
    EXPECT_EQ((*texts)("Outer", {{"count", 1}}), "7 photos in inner");
    EXPECT_EQ((*texts)("Photos", {{"count", 1}, {"album", (*texts)("None")}}),
              "one photo in no None");
}

TEST_F(TextsTest, CallsNestInReports) {
    host::TreeSettings settings = Settings();
    std::optional<host::Texts> texts;
    std::string inner;
    settings.report = [&](std::uint32_t, std::string_view) {
        inner += (*texts)("Photos", {{"count", 2}, {"album", "inner"}});
    };
    texts = Open({"de", "en"}, settings);
    EXPECT_EQ((*texts)("Hello", {{"who", "Ada"}}), "Hi Ada");
    EXPECT_EQ(inner, "2 Fotos in inner");
}

TEST_F(TextsTest, TellsWhyThereIsNoText) {
    host::TreeSettings settings = Settings();
    settings.whenMissing = host::ThrowTextError;
    const host::Texts texts = Open("en", settings);
    const auto problem = [&](std::string_view key, host::Params params) {
        return ErrorText<host::TextError>([&] { texts(key, params); });
    };
    const std::string wrong =
        "text 'Photos' of scope 'main' in culture 'en': it asks for $album, "
        "the call has: $count, $Album";
    EXPECT_EQ(problem("Photos", {{"count", 3}, {"Album", "x"}}), wrong);
    const std::string missing =
        "text 'Fotos' of scope 'main' in culture 'en': there is no such text";
    EXPECT_EQ(problem("Fotos", {}), missing);
    EXPECT_EQ(problem("Fotos", {}), missing);
    const std::string forms =
        "localization manager error: cannot get string for key: Forms, error: Invalid plural form "
        "count (expected: 2, got: 1, discriminator: count)";
    EXPECT_EQ(problem("Forms", {{"count", 3}}), forms);
    EXPECT_EQ(TakeReports(), wrong + '\n' + missing + '\n' + forms + '\n');

    settings.whenMissing = host::ShowMarkedKey;
    EXPECT_EQ(Open("en", settings)("Fotos"), "[Fotos]");
}

TEST_F(TextsTest, FallsThroughToTheNextCultureAndRemembersWhatIsMissing) {
    const host::Texts texts = Open({"de", "en"});
    EXPECT_EQ(texts("Photos", {{"count", 2}, {"album", "A"}}), "2 Fotos in A");
    EXPECT_EQ(texts("Only.English"), "English");
    EXPECT_EQ(texts("Only.English"), "English");
    EXPECT_EQ(texts("None"), "None");
    // A text that is there and wrong hides behind no other culture's.
    EXPECT_EQ(texts("Photos", {{"album", "A"}}), "Photos");
    EXPECT_TRUE(texts.Has("only.english"));
    EXPECT_FALSE(texts.Has("Never.Asked"));
    std::string missing;
    for (const host::MissingText& text : texts.Missing()) {
        missing += text.scope + ' ' + text.culture + ' ' + text.key + '\n';
    }
    EXPECT_EQ(missing, "main de None\nmain de Only.English\nmain en None\n");
    EXPECT_EQ(TakeReports(),
              "text 'Only.English' of scope 'main' in culture 'de': there is no such text\n"
              "text 'None' of scope 'main' in culture 'de': there is no such text\n"
              "text 'None' of scope 'main' in culture 'en': there is no such text\n"
              "text 'Photos' of scope 'main' in culture 'de': it asks for $count, the call has: "
              "$album\n");
}

TEST_F(TextsTest, TakesTheVariantThatTheFirstCultureHas) {
    const host::Texts texts = Open({"de", "en"});
    const host::Param who("who", "Ada");
    EXPECT_EQ(texts.Variant("Invited", "other"), "kamen");
    // The first culture's own words come before another's, be they less exact.
    EXPECT_EQ(texts.Variant("Invited", "female"), "kam");
    EXPECT_EQ(Open("en").Variant("Invited", "female"), "she came");
    EXPECT_EQ(Open("en").Variant("Invited", "male", {&who, 1}), "Ada came");
    EXPECT_EQ(Open("en").Variant("Invited", "", {&who, 1}), "Ada came");
    EXPECT_EQ(TakeReports(), "");
    EXPECT_EQ(texts.Variant("None", "female"), "None");
    EXPECT_EQ(texts.Missing().size(), 2U);
}

TEST_F(TextsTest, FindsFilesOfTheFirstCultureThatHasThem) {
    const host::Texts texts = Open({"de", "en"});
    EXPECT_EQ(texts.Path("logo.png"), (files.Root() / "en" / "main" / "logo.png").string());
    EXPECT_EQ(texts.Path("none.png"), std::nullopt);
    EXPECT_EQ(texts.Path("../main/logo.png"), std::nullopt);
    EXPECT_NE(TakeReports().find("leads out of the tree"), std::string::npos);
}

TEST_F(TextsTest, SaysBeforeAnythingIsShownWhetherAScopeCanBeUsed) {
    files.Write("fr/Locs/main.lt", "A = 'x");
    const host::Tree tree(files.Root().string(), Settings());
    EXPECT_TRUE(tree.Open("main", "en").State().isUsable);
    EXPECT_EQ(TakeReports(), "");
    const host::TextsState none = tree.Open("none", "en").State();
    EXPECT_FALSE(none.isUsable);
    EXPECT_EQ(
        none.report,
        "localization manager error: cannot create string localizer for scope none culture en-, "
        "error: cannot find localization file 'none.lt'");
    EXPECT_EQ(TakeReports(), none.report + '\n');
    const host::Texts broken = tree.Open("main", {"fr", "en"});
    EXPECT_TRUE(broken.State().isUsable);  // by the second culture
    EXPECT_NE(broken.State().report.find("parse error"), std::string::npos);
    EXPECT_EQ(broken("Only.English"), "English");  // and no further word about it
    EXPECT_EQ(TakeReports(), broken.State().report + '\n');
    EXPECT_EQ(tree.Open("none", "en")("Key"), "Key");
    EXPECT_EQ(TakeReports(), "");
}

TEST_F(TextsTest, CannotBeOpenedWithoutTreeCultureOrModule) {
    const auto error = [](const auto& open) { return ErrorText<std::runtime_error>(open); };
    EXPECT_NE(error([&] {
                  host::Tree(files.Root().string() + "/none", Settings());
              }).find("root localization URI has to be directory"),
              std::string::npos);
    EXPECT_EQ(error([&] { Open("xx"); }), "unknown culture 'xx': Unspecified error");
    EXPECT_EQ(error([&] { Open(std::vector<std::string>()); }),
              "no culture is given: Invalid argument");
    EXPECT_NE(error([&] { Open("en-../x"); }).find("leads out of the tree"), std::string::npos);
    host::TreeSettings settings;
    settings.module = "none.so";
    EXPECT_NE(error([&] { Open("en", settings); }).find("cannot load module"), std::string::npos);
    EXPECT_EQ(TakeReports(), "");
}

}  // namespace
