// Where sources, plural rules and resource files are found.
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "BufferResourceProvider.h"
#include "ErrorText.h"
#include "FileResourceProvider.h"
#include "TempTree.h"
#include "Utf8.h"
#include "qor/rtl/contracts/QorCallFailedException.h"

namespace {

namespace fs = std::filesystem;
using namespace LocalizationManager::File;
using lm_test::ErrorText;
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
    EXPECT_THROW(Over(u"none", u"none"), LocalizationManager::QorCallFailedException);
    EXPECT_THROW(Over(u"root", u"file/x"), LocalizationManager::QorCallFailedException);
}

TEST_F(FileResourceProviderTest, PluralRulesAreThoseOfTheRegionOrElseOfTheLanguageInTheRoot) {
    for (const char* file : {"a/pt/br/Plural.rule", "a/pt/Plural.rule", "r/pt-br/Plural.rule",
                             "r/neutral/Plural.rule", "r/pt/BR/Plural.rule"}) {
        tree_.Write(file, "");
    }
    FileResourceProvider provider = Over(u"r", u"a");
    const PluralFormRuleId id(L::Portuguese, "br");
    EXPECT_FALSE(provider.HasPluralFormRules(id));
    for (const char* file : {"r/pt/Plural.rule", "r/pt/br/Plural.rule"}) {
        tree_.Write(file, "");
        EXPECT_EQ(provider.GetPluralFormRules(id).sourceName, tree_.Path(file));
    }
}

/// The parameter: whether the texts of "app" and the common ones are in memory, in front of files.
class ResourceProviderTest : public testing::TestWithParam<bool> {
protected:
    ResourceProviderTest() {
        tree_.Write("de/Locs/app.lt", GetParam() ? "hidden" : "app text");
        tree_.Write("de/Locs/common.lt", GetParam() ? "hidden" : "common text");
        tree_.Write("de/Locs/other.lt", "other text");
        if (GetParam()) {
            provider_ = boost::make_shared<BufferResourceProvider>(provider_, u"app", u"app text",
                                                                   u"common text");
        }
    }

    const lm_test::TempTree tree_;
    boost::shared_ptr<LocalizationManager::StringLocalizing::Pipeline::IResourceProvider>
        provider_ = boost::make_shared<FileResourceProvider>(tree_.Path(), u"");
};

INSTANTIATE_TEST_SUITE_P(FileAndBuffer, ResourceProviderTest, testing::Bool());

TEST_P(ResourceProviderTest, SourcesRulesAndPathsAreFoundOrNamedAsMissing) {
    for (const std::u16string name : {u"app", u"common", u"other"}) {
        EXPECT_EQ(provider_->GetResource(name, kGerman).content, name + u" text");
    }
    EXPECT_EQ(ErrorText([&] { provider_->GetResource(u"sub\\\u00E9", kGerman); }),
              "cannot find localization file 'sub\\\xC3\xA9.lt'");
    const PluralFormRuleId id(kGerman);
    EXPECT_FALSE(provider_->HasPluralFormRules(id));
    EXPECT_EQ(ErrorText([&] { provider_->GetPluralFormRules(id); }),
              "cannot find plural form file for id 'de-br'");
    tree_.Write("de/Plural.rule", "rules");
    EXPECT_TRUE(provider_->HasPluralFormRules(id));
    EXPECT_EQ(provider_->GetPluralFormRules(id).content, u"rules");
    const std::u16string path = tree_.Path("de/Locs/app.lt");
    EXPECT_EQ(provider_->GetResourcePath(u"Locs", kGerman, u"app.lt"), path);
    EXPECT_EQ(provider_->GetResourcePath(u"Locs", kGerman, u"none.lt"), u"");
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
        BufferResourceProvider clash(files, u"common", u"", common);
        EXPECT_EQ(clash.GetResource(u"common", kUnsupported).content, common);
    }
}

TEST(BufferResourceProviderTest, NothingToWrapIsRefused) {
    using Null = code_contracts::NullPointerException<code_contracts::InvariantViolationException>;
    const auto text = ErrorText<Null>([] { BufferResourceProvider(nullptr, u"", u"", u""); });
    EXPECT_EQ(text.find("Contract Violation! Violated argument 'resourceProvider_' at "), 0U);
    EXPECT_EQ(text.substr(text.rfind(" at ")),
              " at src\\File/buffer_resource_provider:25Description: unexpected null pointer");
}

}  // namespace
