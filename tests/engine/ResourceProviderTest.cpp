// Where sources, plural rules and resource files are found.
#include <gtest/gtest.h>

#include <boost/algorithm/string/case_conv.hpp>

#include "ErrorText.h"
#include "FileResourceProvider.h"
#include "MessageUtf8.h"
#include "SystemTraits.h"
#include "TempTree.h"

namespace {

namespace fs = std::filesystem;
using namespace LocalizationManager::File;
using localization_manager::Culture;
using LocalizationManager::Text::ToUtf8;
using L = localization_manager::Language;

using lm_test::kCaseTellsFilesApart;

const Culture kGerman{L::German, "br", ""};

std::string ComparedAsTheSystemDoes(const std::string& paths) {
    return kCaseTellsFilesApart ? paths : boost::to_lower_copy(paths);
}

/// A path with one kind of separator.
std::string Generic(const std::u16string& path) {
    return fs::path(path).generic_u8string();
}

class FileResourceProviderTest : public testing::Test {
protected:
    FileResourceProvider Over(const std::u16string& root, const std::u16string& alternative = u"") {
        return {tree_.Path() + u"/" + root,
                alternative.empty() ? u"" : tree_.Path() + u"\\" + alternative};
    }

    const lm_test::TempTree tree_;
};

TEST_F(FileResourceProviderTest, TheAlternativeTreeComesFirstAndSpecificDirectoriesBeforeNeutral) {
    // Where letter case does not tell, the other spelling of a directory is the same one.
    const std::pair<Culture, const char*> cases[] = {
        {{L::Portuguese, "br", "x"}, "a/pt-br a/neutral r/pt-br-x r/pt-br r/pt r/neutral "},
        {{L::Portuguese, "BR", ""},
         kCaseTellsFilesApart ? "a/neutral r/pt-BR r/pt r/neutral "
                              : "a/pt-br a/neutral r/pt-br r/pt r/neutral "},
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
        EXPECT_EQ(ComparedAsTheSystemDoes(found), ComparedAsTheSystemDoes(directories));
    }
}

TEST_F(FileResourceProviderTest, BothSeparatorsCountAndWhateverExistsIsAcceptedAsRoot) {
    tree_.Write("file", "");
    tree_.Write("root/de/Locs/sub/app.lt", "text");
    tree_.Write("root/de/app/sub/logo.png", "");
    if (lm_test::kHasSymbolicLinks) {
        fs::create_directory_symlink("root", tree_.Root() / "link");
    } else {
        tree_.Write("link/de/Locs/sub/app.lt", "text");
        tree_.Write("link/de/app/sub/logo.png", "");
    }
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
        EXPECT_EQ(Generic(provider.GetResourcePath(scope, kGerman, file)),
                  Generic(tree_.Path(path)));
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
    if (kCaseTellsFilesApart) {
        EXPECT_FALSE(provider.HasPluralFormRules(id));
    } else {
        fs::remove(tree_.Root() / "r/pt/BR/Plural.rule");
    }
    EXPECT_EQ(lm_test::ErrorText([&] { provider.GetPluralFormRules(id); }),
              "cannot find plural form file for id 'pt-br'");
    for (const char* file : {"r/pt/Plural.rule", "r/pt/br/Plural.rule"}) {
        tree_.Write(file, "");
        EXPECT_EQ(Generic(provider.GetPluralFormRules(id).sourceName), Generic(tree_.Path(file)));
    }
}

}  // namespace
