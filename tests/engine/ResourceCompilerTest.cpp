// Inlining of key references.
#include "ResourceCompiler.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <chrono>

#include "DictionaryText.h"
#include "ErrorText.h"
#include "RootExpressionProvider.h"

namespace {

using namespace LocalizationManager::StringLocalizing;
using lm_test::MakeValue;
using lm_test::ParseDictionary;
using lm_test::PrintDictionary;

class ResourceCompilerTest : public testing::Test {
protected:
    /// Returns the error.
    std::string Compile() {
        return lm_test::ErrorText<std::runtime_error>([&] {
            const auto parent = boost::make_shared<Compiling::ResourceCompiler>(
                boost::make_shared<Compiling::RootExpressionProvider>());
            parent->Compile(common_);
            Compiling::ResourceCompiler(parent).Compile(scope_);
        });
    }

    using Dictionary = Model::ResourceDictionary;
    boost::shared_ptr<Dictionary> common_ = boost::make_shared<Dictionary>();
    boost::shared_ptr<Dictionary> scope_ = boost::make_shared<Dictionary>();
};

TEST_F(ResourceCompilerTest, ReferencesAreInlinedTextsJoinedAndUnfinishedValuesLeftAlone) {
    const struct {
        const char16_t *common, *scope;
        const char *compiled, *error = "no exception";
    } cases[] = {
        {u"", u"a='Hello, '+b+'!' b='world' c=''+''", R"(a = "Hello, world!";b = "world";c = "";)"},
        {u"", u"b=c+a+c a=$p+'1' c='2'+$q",
         R"(a = $p + "1";b = "2" + $q + $p + "12" + $q;c = "2" + $q;)"},
        {u"", u"a='x'+{$n:b+'1'+'2'}+'y'+'z' b='b'",
         R"(a = "x" + {$n: b + "1" + "2"} + "yz";b = "b";)"},
        {u"k='common'+m m='!' own='common'", u"a=k+own own='scope'",
         R"(k = "common!";m = "!";own = "common";a = "common!scope";own = "scope";)"},
        {u"", u"a=a", "a = a;", "Cyclic reference found:(a->a)"},
        {u"", u"a='1'+b b='2'+c c='3'+b", R"(a = "1" + b;b = "2" + c;c = "3" + b;)",
         "Cyclic reference found:a->(b->c->b)"},
        {u"", u"a=y+'1' b=y+z y='2'+'3' z=b", R"(a = "231";b = y + z;y = "23";z = b;)",
         "Cyclic reference found:(b->z->b)"},
        {u"", u"a='1'+'2' b=a+missing d='5'+'6'", R"(a = "12";b = a + missing;d = "5" + "6";)",
         "Key 'missing' not found"},
        {u"k=own", u"own=''+''", R"(k = own;own = "" + "";)", "Key 'own' not found"},
    };
    for (const auto& expected : cases) {
        *common_ = ParseDictionary(expected.common);
        *scope_ = ParseDictionary(expected.scope);
        EXPECT_EQ(Compile(), expected.error);
        EXPECT_EQ(PrintDictionary(*common_) + PrintDictionary(*scope_), expected.compiled);
    }
}

TEST_F(ResourceCompilerTest, CompilingAgainWritesNothing) {
    *scope_ = ParseDictionary(u"a=b+$p+c b='x'+'y' c={$n:a,b} d='plain'");
    std::vector<const char16_t*> places[2];
    for (auto& compiled : places) {
        EXPECT_EQ(Compile(), "no exception");
        for (const auto& entry : lm_test::EntriesOf(*scope_)) {
            compiled.push_back(entry.second.code().data());
        }
    }
    EXPECT_EQ(places[0], places[1]);
}

TEST_F(ResourceCompilerTest, LongChainsNeitherRecurseNorTakeSquareTime) {
    constexpr int kLength = 100'000;
    const auto key = [](char prefix, int number) {
        const std::string text = prefix + std::to_string(1'000'000 + number);
        return std::u16string(text.begin(), text.end());
    };
    for (int i = 0; i < kLength; ++i) {
        scope_->Add(key('a', i), MakeValue({Model::KeyRef{key('a', i + 1)}}));
        scope_->Add(key('b', i), MakeValue({Model::KeyRef{key('a', 0)}, std::u16string(u"!")}));
    }
    scope_->Add(key('a', kLength), MakeValue({std::u16string(u"end")}));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Compile(), "no exception");
    // Far above what one walk over all entries takes, far below a walk for each of them.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(lm_test::PrintValue(scope_->At(*scope_->Find(key('b', kLength - 1))).value),
              R"("end!")");
}

}  // namespace
