// Inlining of key references.
#include "ResourceCompiler.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

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

TEST_F(ResourceCompilerTest, ValuesThatReferToOthersMayTakeSoManyUnits) {
    constexpr std::size_t kMost = std::size_t{1} << 20U;
    const auto text = [](std::size_t length) {
        return u'\'' + std::u16string(length, u'x') + u'\'';
    };
    // A plural form that takes 36 units, an empty text that takes 3, a parameter that takes 4.
    const std::u16string forms = u"f={$n:'','','','','',''} v=''";
    std::u16string many;
    while (many.size() / 2 < kMost / 36) {
        many += u"+f";
    }
    const std::pair<std::u16string, bool> cases[] = {
        {u"v=" + text(kMost) + u"+" + text(kMost) + u"+$n", true},
        {u"v=t t=" + text(kMost - 3), true},
        {u"v=t t=" + text(kMost - 2), false},
        {u"v=t+" + text(kMost / 2 - 2) + u" t=" + text(kMost / 2 - 1), true},
        {u"v=" + text(kMost / 2 - 2) + u"+t t=" + text(kMost / 2), false},
        {forms + many, true},
        {forms + u"+$n" + many, false},
    };
    for (const auto& [source, isAllowed] : cases) {
        *scope_ = ParseDictionary(source);
        EXPECT_EQ(Compile(), isAllowed ? "" : "Key 'v' expands to more than 1048576 characters");
    }
}

}  // namespace
