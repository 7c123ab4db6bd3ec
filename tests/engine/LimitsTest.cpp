// What a text may ask for at most: at and above each limit, on a stack as small as a host's may be.
#include <gtest/gtest.h>
#include <pthread.h>

#include <boost/make_shared.hpp>
#include <functional>

#include "DictionaryText.h"
#include "ErrorText.h"
#include "ExpansionLimitException.h"
#include "KeyResolver.h"
#include "NestingGuard.h"
#include "PluralFormRules.h"
#include "PluralFormRulesParser.h"
#include "PluralResolver.h"
#include "ResourceCompiler.h"
#include "RootExpressionProvider.h"

namespace {

using namespace LocalizationManager::StringLocalizing;
using Parsing::kMaxNesting;

#ifdef NDEBUG
constexpr std::size_t kStackSize = std::size_t{256} * 1024;
#else  // frames of sanitized builds are several times as large
constexpr std::size_t kStackSize = std::size_t{8} * 1024 * 1024;
#endif

struct AlwaysOne : Resolving::IParamResolver {
    qor::string16_t Resolve(const qor::string16_t& /*name*/) override { return u"1"; }
};

void OnSmallStack(std::function<void()> work) {
    pthread_attr_t attributes;
    pthread_t thread = {};
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, kStackSize), 0);
    const auto run = [](void* function) -> void* {
        (*static_cast<std::function<void()>*>(function))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

std::u16string Nested(int depth, std::u16string_view open, std::u16string_view core,
                      std::u16string_view close) {
    std::u16string text(core);
    for (int i = 0; i < depth; ++i) {
        text.insert(0, open).append(close);
    }
    return text;
}

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

TEST(LimitsTest, FormsNestUpToTheLimit) {
    const auto source = [](int depth) { return u"A = " + Nested(depth, u"{$n: ", u"'x'", u"}"); };
    OnSmallStack([&] {
        const auto params = boost::make_shared<AlwaysOne>();
        const Model::PluralFormRuleId japanese(localization_manager::Language::Japanese, "");
        Resolving::KeyResolver resolver(
            params, boost::make_shared<Resolving::PluralResolver>(params, japanese,
                                                                  Model::CreatePluralFormRules()));
        const Model::ResourceDictionary parsed = lm_test::ParseDictionary(source(kMaxNesting));
        EXPECT_EQ(resolver.Resolve(parsed.At(*parsed.Find(u"a")).value, nullptr).view(), u"x");
    });
    const std::string error =
        lm_test::ErrorText([&] { lm_test::ParseDictionary(source(kMaxNesting + 1)); });
    EXPECT_EQ(error.find("parse error at file app.lt line 1 column 325\n"), 0U) << error;
    EXPECT_TRUE(EndsWith(error, " ^- expecting at most 64 nested plural forms here")) << error;
}

TEST(LimitsTest, ParenthesesNestUpToTheLimit) {
    const auto parse = [](int depth) {
        const std::u16string source = Nested(depth, u"(", u"n==1", u")") + u";";
        const auto range = Parsing::MakeSourceRange(source, u"Plural.rule");
        Model::PluralFormRule rule;
        Parsing::ParsePluralFormRules(range.first, range.last, rule);
        return rule;
    };
    OnSmallStack([&] { EXPECT_TRUE(parse(kMaxNesting).at(0)(1)); });
    const std::string error = lm_test::ErrorText([&] { parse(kMaxNesting + 1); });
    EXPECT_EQ(error.find("parse error at file Plural.rule line 1 column 65\n"), 0U) << error;
    EXPECT_TRUE(EndsWith(error, " ^- expecting at most 64 nested parentheses here")) << error;
}

TEST(LimitsTest, ReferencesExpandUpToTheLimits) {
    using Compiling::kMaxExpandedDictionary;
    using Compiling::kMaxExpandedValue;
    const auto compile = [](std::size_t length, std::size_t values) {
        const auto dictionary = boost::make_shared<Model::ResourceDictionary>();
        dictionary->Add(u"text", lm_test::MakeValue({std::u16string(length - 1, u'x')}));
        for (std::size_t i = 0; i < values; ++i) {
            dictionary->Add(std::u16string{u'v', static_cast<char16_t>(u'0' + i)},
                            lm_test::MakeValue({Model::KeyRef{u"text"}}));
        }
        const auto attempt = [&] {
            return lm_test::ErrorText<std::runtime_error>([&] {
                Compiling::ResourceCompiler(boost::make_shared<Compiling::RootExpressionProvider>())
                    .Compile(dictionary);
            });
        };
        std::string first = attempt();
        EXPECT_EQ(attempt(), first) << "what is done already counts";
        return first;
    };
    constexpr std::size_t kMost = kMaxExpandedDictionary / kMaxExpandedValue;
    EXPECT_EQ(compile(kMaxExpandedValue, kMost), "no exception");
    EXPECT_EQ(compile(kMaxExpandedValue + 1, 1),
              "Key 'v0' expands to more than 1048576 characters");
    EXPECT_EQ(compile(kMaxExpandedValue, kMost + 1),
              "Key 'vp' makes the dictionary expand to more than 67108864 characters");
}

}  // namespace
