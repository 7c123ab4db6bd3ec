// Inlining of key references.
#include "ResourceCompiler.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <chrono>

#include "Cases.h"
#include "DictionaryText.h"
#include "ErrorText.h"
#include "RootExpressionProvider.h"

namespace {

using namespace LocalizationManager::StringLocalizing;
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
    for (const auto& [sources, compiled] : lm_test::ReadCases("compiled_texts.txt")) {
        const std::size_t bar = sources.find(u'|');
        *common_ = ParseDictionary(sources.substr(0, bar));
        *scope_ = ParseDictionary(sources.substr(bar + 1));
        const std::string error = Compile();
        EXPECT_EQ(PrintDictionary(*common_) + '|' + PrintDictionary(*scope_) + '|' + error,
                  compiled);
    }
}

TEST_F(ResourceCompilerTest, CompilingAgainWritesNothing) {
    *scope_ = ParseDictionary(u"a=b+$p+c b='x'+'y' c={$n:a,b} d='plain'");
    std::vector<const char16_t*> places[2];
    for (auto& compiled : places) {
        EXPECT_EQ(Compile(), "");
        for (const auto& entry : lm_test::EntriesOf(*scope_)) {
            compiled.push_back(entry.second.code().data());
        }
    }
    EXPECT_EQ(places[0], places[1]);
}

TEST_F(ResourceCompilerTest, LongChainsNeitherRecurseNorTakeSquareTime) {
    constexpr int kLength = 100'000;
    std::string source = "end='x'";
    for (int i = 0; i < kLength; ++i) {
        const std::string number = std::to_string(i);
        const std::string next = i + 1 < kLength ? 'a' + std::to_string(i + 1) : "end";
        source.append(" a").append(number).append("=").append(next);
        source.append(" b").append(number).append("=a0+'!'");
    }
    *scope_ = ParseDictionary({source.begin(), source.end()});
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Compile(), "");
    // Far above what one walk over all entries takes, far below a walk for each of them.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(lm_test::PrintValue(scope_->At(*scope_->Find(u"b99999")).value), "'x!'");
}

}  // namespace
