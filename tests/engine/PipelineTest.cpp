// Sources to final texts: what pipelines load, and what they answer.
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "BufferProcessingPipeline.h"
#include "BufferResourceProvider.h"
#include "FakeServiceLocator.h"
#include "FileResourceProvider.h"
#include "GlobalLocale.h"
#include "ResourceProcessingPipeline.h"
#include "TempTree.h"
#include "Utf8.h"
#include "localization_manager/host/ResolveListener.h"

namespace {

using namespace LocalizationManager::StringLocalizing;
using localization_manager::host::ResolveListener;
using LocalizationManager::Text::ToUtf8;
using Text = const char16_t*;

struct FakeParamResolver : Resolving::IParamResolver {
    std::map<std::u16string_view, const char16_t*> texts = {
        {u"one", u"1"}, {u"n", u"3"}, {u"word", u"x"}};
    qor::string16_t Resolve(const qor::string16_t& name) override { return texts.at(name.view()); }
};

class PipelineTest : public testing::Test {
protected:
    /// The scope "app" and common texts in memory, empty ones for those of files.
    boost::shared_ptr<Pipeline::IResourceProvider> Sources(const std::u16string& app, Text common) {
        using namespace LocalizationManager::File;
        return boost::make_shared<BufferResourceProvider>(
            boost::make_shared<FileResourceProvider>(tree_.Path(), u""), app.empty() ? u"" : u"app",
            app, common);
    }

    Pipeline::ResourceProcessingPipeline Build(Text app, Text common) {
        return {Sources(app, common), params_, common_, culture_, u"app", u"common"};
    }

    Pipeline::BufferProcessingPipeline BuildOverBuffers(Text app, Text common) {
        return {Sources(app, common), params_, culture_, u"app", u"common"};
    }

    /// The text of a key, or the error.
    std::string Answer(Text key, Text app, Text common, ResolveListener* listener = nullptr) {
        try {
            return ToUtf8(Build(app, common).GetString(key, listener).view());
        } catch (const std::exception& error) {
            return error.what();
        }
    }

    const lm_test::TempTree tree_;
    boost::shared_ptr<FakeParamResolver> params_ = boost::make_shared<FakeParamResolver>();
    boost::shared_ptr<Model::ResourceDictionary> common_ =
        boost::make_shared<Model::ResourceDictionary>();
    const localization_manager::Culture culture_{localization_manager::Language::Polish, "br", ""};
};

TEST_F(PipelineTest, TextsAreResolvedAndReportedInsideOutUpToTheFirstFailure) {
    std::string heard;
    const auto listener =
        lm_test::Make<ResolveListener>([&](auto kind, auto& source, auto& name, auto& value) {
            heard += std::to_string(static_cast<int>(kind)) + ' ' + source + '|' + name + '|' +
                     value + ';';
        });
    const std::tuple<Text, Text, std::string, const char*> cases[] = {
        {u"A", u"a=$n + ' ' + {$n: 'file', 'files', 'of files'} + '.'", "3 files.",
         "1 |n|3;2 |n|files;0 app|A|3 files.;"},
        {u"A", u"a={$n: '', $word + {$one: $n + '!', '', ''}, ''}", "x3!",
         "1 |word|x;1 |n|3;2 |one|3!;2 |n|x3!;0 app|A|x3!;"},
        {u"A", u"a={$n: '', $word + $missing, ''}", "map::at", "1 |word|x;"},
        {u"BoTH", u"Both='scope'", "scope", "0 app|BoTH|scope;"},
        {u"sHARED_1", u";", "shared 3", "1 |n|3;0 common|shared_1|shared 3;"},
    };
    for (const auto& [key, app, answer, reports] : cases) {
        const Text common = u"both='common' Shared_1='shared ' + $n";
        EXPECT_EQ(Answer(key, app, common, listener.get()), answer);
        EXPECT_EQ(std::exchange(heard, ""), reports) << answer;
    }
}

TEST_F(PipelineTest, DecimalIntegersOf64BitsAreNumbersInEveryLocale) {
    const std::string noEntry = "Cannot find rule entry with id 'pl-br' and discriminator value ";
    tree_.Write("pl/br/Plural.rule", "n == 1 && n == 2;");
    for (const char* name : {"C", "en_US.UTF-8"}) {
        const lm_test::GlobalLocale locale(name);
        const auto answer = [&](Text number) {
            params_->texts[u"n"] = number;
            return Answer(u"a", u"a={$n:'x'}", u";");
        };
        EXPECT_EQ(answer(u"-0"), noEntry + "0");
        EXPECT_EQ(answer(u"+0001234567"), noEntry + "1234567");
        EXPECT_EQ(answer(u"9223372036854775807"), noEntry + "9223372036854775807");
        EXPECT_EQ(answer(u"-9223372036854775808"), noEntry + "-9223372036854775808");
        for (const Text text :
             {u"", u"+", u"-", u"+-5", u"-+5", u"++5", u" 5", u"5 ", u"1.0", u"1,000", u"0x5",
              u"5a", u"\uFF15", u"\u0135", u"9223372036854775808", u"-9223372036854775809"}) {
            EXPECT_EQ(answer(text),
                      "bad lexical cast: source type value could not be interpreted as target")
                << ToUtf8(text);
        }
    }
}

TEST_F(PipelineTest, CommonTextsAreLoadedOnceAndScopesUseAndOverrideThem) {
    const Text common = u"Name='Common' brand='B'";
    EXPECT_EQ(Answer(u"Title", u"name='App' title=brand+': '+NAME", common), "B: App");
    EXPECT_EQ(Answer(u"Title", u"title=name", u"name='again'"), "Common");
    EXPECT_EQ(Answer(u"BRAND", u"title=name", u"never parsed"), "B");
}

TEST_F(PipelineTest, PipelinesOverBuffersLoadCommonTextsEachForItself) {
    auto early = BuildOverBuffers(u"a=c", u"c='early'");
    EXPECT_EQ(BuildOverBuffers(u"a=c", u"c='late'").GetString(u"a", nullptr).view(), u"late");
    EXPECT_EQ(early.GetString(u"a", nullptr).view(), u"early");
    EXPECT_EQ(early.GetString(u"c", nullptr).view(), u"early");
}

TEST_F(PipelineTest, APipelineBuiltOverNoCommonTextsDoesNotReadThoseLoadedLater) {
    auto early = Build(u"a='x'", u"; nothing yet");
    EXPECT_EQ(Answer(u"c", u"a='x'", u"c='late'"), "late");
    EXPECT_FALSE(early.HasString(u"c"));
}

TEST_F(PipelineTest, ABrokenCommonSourceLeavesTheTextsBeforeTheFaultAndIsNotLoadedAgain) {
    EXPECT_THROW(Build(u"a=c", u"c='x' d='y' e="), std::runtime_error);
    EXPECT_EQ(Answer(u"a", u"a=c+d", u"c='mended' e='z'"), "xy");
    EXPECT_EQ(Answer(u"e", u"a=c+d", u"c='mended' e='z'"), "Key 'e' not found");
}

TEST_F(PipelineTest, TheFirstFailingStepIsTheOneReported) {
    const std::string rules = "parse error at file " + (tree_.Root() / "pl/Plural.rule").string();
    const std::tuple<const char*, Text, Text, std::string> cases[] = {
        {"n=1;", u"", u"", rules + " line 1 column 2\n"},
        {"n==1;", u"%", u"", "cannot find localization file 'common.lt'"},
        {"n==1;", u"%", u"a='x' A=", "parse error at file common line 1 column 9\n"},
        {"n==1;", u"", u"a=b", "cannot find localization file 'app.lt'"},
        {"n==1;", u"b='x'\nc=", u"a=b", "parse error at file app line 2 column 3\n"},
        {"n==1;", u"b='x' c=c", u"a=b", "Key 'b' not found"},
        {"n==1;", u"b=a c=c", u"a='x'", "Cyclic reference found:(c->c)"},
    };
    for (const auto& [rule, app, common, error] : cases) {
        tree_.Write("pl/Plural.rule", rule);
        *common_ = {};
        EXPECT_EQ(Answer(u"b", app, common).substr(0, error.size()), error);
    }
}

}  // namespace
