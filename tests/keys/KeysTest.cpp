// Headers that `localize keys` has made of trees, compiled and asked.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "localization_manager/host/host.h"
#include "localized.h"
#include "odd/names.h"

namespace {

namespace host = localization_manager::host;

template <class Scope>
Scope Open(const char* root, const char* culture) {
    host::TreeSettings settings;
    settings.module = MODULE;
    settings.whenMissing = host::ThrowTextError;
    return Scope(host::Tree(root, settings), culture);
}

TEST(KeysTest, FunctionsGiveTheTextsOfTheSamples) {
    const auto main = Open<localized::MainTexts>(SAMPLES, "de");
    EXPECT_EQ(main.Files_Selected(3), "3 Dateien ausgewählt");
    EXPECT_EQ(main.Greeting(std::string("Ada")), "Willkommen zurück, Ada!");
    EXPECT_EQ(main.Overview(1U, 2L), "2 Fotos · 1 Album");  // asked for by references alone
    EXPECT_EQ(main.App_Name(), "Vosperel");
    EXPECT_EQ(main.handle()(localized::MainTexts::Keys::Button_Cancel), "Abbrechen");
    const auto settings = Open<localized::SettingsTexts>(SAMPLES, "en");
    EXPECT_EQ(settings.Storage_Used("7 GB", 2), "2 of 7 GB in use");  // ordered by name
    const localized::CommonTexts& common = settings;
    EXPECT_EQ(common.Button_Ok(), "OK");
}

TEST(KeysTest, NamesThatAreNoneInCppAreTurnedIntoSome) {
    const auto texts = Open<odd::names::_2_dialogsTexts>(TREE, "en");
    EXPECT_EQ(texts.Menu() + ", " + texts.Menu_New(), "a key above other keys, of a menu");
    EXPECT_EQ(texts.delete_() + texts.Variant_() + texts.Reserved_X(),
              "a keyworda name of the classto the compiler");
    EXPECT_EQ(texts.T1_("t", "x", "c"), "of a template: t x c");
    // One key in two letter cases, of which the source's own answers.
    EXPECT_EQ(texts.Dialog_Title("7"), "own: 7");
    EXPECT_EQ(odd::names::CommonTexts::Keys::Dialog_Title, "Dialog.Title");
    // One value for $count and $count.number, whoever writes numbers.
    static_assert(std::is_same_v<decltype(texts.Both(3, "Ada", "now")), std::string>);
}

TEST(KeysTest, AVariantTakesThePlaceOfItsTextWithTheParametersOfBoth) {
    const auto texts = Open<odd::names::_2_dialogsTexts>(TREE, "en");
    EXPECT_EQ(texts.Invited("Ada", "A", "now"), "Ada is invited");
    EXPECT_EQ(texts.Variant("close").Invited("Ada", "A", "now"), "Come, A!");
    EXPECT_EQ(texts.Variant("last").Invited("Ada", "A", "now"), "At last now");
    EXPECT_EQ(texts.Variant("unknown").Invited("Ada", "A", "now"), "Ada is invited");
    EXPECT_EQ(odd::names::CommonTexts::Keys::Invited_close, "Invited._close");
}

}  // namespace
