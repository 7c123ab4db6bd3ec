// Where sources, plural rules and resource files are found.
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "BufferResourceProvider.h"
#include "ErrorText.h"
#include "FileResourceProvider.h"
#include "TempTree.h"
#include "Utf8.h"

namespace {

namespace fs = std::filesystem;
using namespace LocalizationManager::File;
using localization_manager::Culture;
using LocalizationManager::Text::ToUtf8;
using L = localization_manager::Language;

const Culture kGerman{L::German, "br", ""};
const Culture kUnsupported{static_cast<L>(40), "br", ""};

class FileResourceProviderTest : public testing::Test {
protected:
    FileResourceProvider Over(const std::u16string& root, const std::u16string& alternative = u"") {
        return {tree_.Path() + u"/" + root,
                alternative.empty() ? u"" : tree_.Path() + u"\\" + alternative};
    }

    const lm_test::TempTree tree_;
};

TEST_F(FileResourceProviderTest, TheAlternativeTreeComesFirstAndSpecificDirectoriesBeforeNeutral) {
    const std::pair<Culture, const char*> cases[] = {
        {{L::Portuguese, "br", "x"}, "a/pt-br a/neutral r/pt-br-x r/pt-br r/pt r/neutral "},
        {{L::Portuguese, "BR", ""}, "a/neutral r/pt-BR r/pt r/neutral "},
        {{L::Portuguese, "", "x"}, "a/neutral r/pt r/neutral "},
        {{L::ChineseSimplified, "", ""}, "a/neutral r/zh-Hans r/neutral "},
        {{L::German, "\xC3\xA4", ""}, "a/neutral r/de-\xC3\xA4 r/de r/neutral "},
    };
    for (const auto& [culture, directories] : cases) {
        // So many that a wrong turn finds something.
        for (const std::string directory :
             {"a", "a/pt-br", "a/neutral", "r", "r/pt-br-x", "r/pt-br", "r/pt-BR", "r/pt-BR-",
              "r/pt-x", "r/pt--x", "r/pt", "r/zh-Hans", "r/zh-hans", "r/de-\xC3\xA4", "r/de",
              "r/neutral"}) {
            tree_.Write(directory + "/Locs/app.lt", directory + ' ');
        }
        FileResourceProvider provider = Over(u"r", u"a");
        std::string found;
        std::u16string path;
        while (!(path = provider.GetResourcePath(u"Locs", culture, u"app.lt")).empty()) {
            const auto source = provider.GetResource(u"app", culture);
            EXPECT_EQ(source.sourceName, path);
            found += ToUtf8(source.content);
            ASSERT_TRUE(fs::remove(path)) << ToUtf8(path);
        }
        EXPECT_EQ(found, directories);
    }
}

TEST_F(FileResourceProviderTest, BothSeparatorsCountAndWhateverExistsIsAcceptedAsRoot) {
    tree_.Write("file", "");
    tree_.Write("root/de/Locs/sub/app.lt", "text");
    tree_.Write("root/de/app/sub/logo.png", "");
    fs::create_directory_symlink("root", tree_.Root() / "link");
    using Text = const char16_t*;
    const std::tuple<Text, Text, Text, Text, const char*> cases[] = {
        {u"root/", u"sub/app", u"app/", u"sub\\logo.png", "root/de/app/sub/logo.png"},
        {u"root\\", u"sub\\app", u"app\\sub\\", u"logo.png", "root/de/app/sub/logo.png"},
        {u"link\\..\\root", u"sub/app", u"", u"app\\sub\\", "link/../root/de/app/sub/"},
        {u"link", u"sub\\app", u"app", u"", "link/de/app"},
    };
    for (const auto& [root, name, scope, file, path] : cases) {
        FileResourceProvider provider = Over(root, u"file");
        EXPECT_EQ(provider.GetResource(name, kGerman).content, u"text");
        EXPECT_EQ(provider.GetResourcePath(scope, kGerman, file), tree_.Path(path));
    }
    EXPECT_THROW(Over(u"file").GetResource(u"app", kGerman), std::runtime_error);
}

TEST_F(FileResourceProviderTest, PluralRulesAreThoseOfTheRegionOrElseOfTheLanguageInTheRoot) {
    for (const char* file : {"a/pt/br/Plural.rule", "a/pt/Plural.rule", "r/pt-br/Plural.rule",
                             "r/neutral/Plural.rule", "r/pt/BR/Plural.rule"}) {
        tree_.Write(file, "");
    }
    FileResourceProvider provider = Over(u"r", u"a");
    const PluralFormRuleId id(L::Portuguese, "br");
    EXPECT_FALSE(provider.HasPluralFormRules(id));
    EXPECT_EQ(lm_test::ErrorText([&] { provider.GetPluralFormRules(id); }),
              "cannot find plural form file for id 'pt-br'");
    for (const char* file : {"r/pt/Plural.rule", "r/pt/br/Plural.rule"}) {
        tree_.Write(file, "");
        EXPECT_EQ(provider.GetPluralFormRules(id).sourceName, tree_.Path(file));
    }
}

TEST(BufferResourceProviderTest, TextsServeEveryCultureUnderTheirExactNamesOnly) {
    const lm_test::TempTree tree;
    const auto files = boost::make_shared<FileResourceProvider>(tree.Path(), u"");
    for (const std::u16string common : {u"", u"shared"}) {
        BufferResourceProvider provider(files, u"App", u"text", common);
        const auto source = provider.GetResource(u"App", kUnsupported);
        EXPECT_EQ(source.sourceName + u": " + source.content, u"App: text");
        for (const char16_t* name : {u"app", u"Common", common.empty() ? u"common" : u""}) {
            EXPECT_THROW(provider.GetResource(name, kUnsupported), std::range_error) << "a file's";
        }
        EXPECT_THROW(provider.GetResourcePath(u"App", kUnsupported, u"x"), std::range_error);
        BufferResourceProvider clash(files, u"common", u"", common);
        EXPECT_EQ(clash.GetResource(u"common", kUnsupported).content, common);
    }
}

}  // namespace
