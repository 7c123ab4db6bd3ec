// Keys in the letter case of the locale, which a quicker way for ASCII must not change.
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "DictionaryText.h"
#include "GlobalLocale.h"
#include "RootStringProvider.h"

namespace {

using namespace LocalizationManager::StringLocalizing;

struct NoResolver : Resolving::IKeyResolver {
    void Resolve(Model::ValueView, Resolving::IResolveListener*,
                 Resolving::ResolvedText&) override {}
};

TEST(StringProviderTest, KeysAreLowerCasedAsTheLocaleSaysEvenWhenTheyAreAscii) {
    const lm_test::GlobalLocale turkish(std::locale({}, new lm_test::TurkishLetters));
    const auto texts = boost::make_shared<Model::ResourceDictionary>(
        lm_test::ParseDictionary(u"i = '' TITLE = ''"));
    Resolving::RootStringProvider provider(boost::make_shared<NoResolver>(), texts, u"app");
    const std::pair<std::u16string_view, bool> cases[] = {
        {u"i", true}, {u"I", false}, {u"TITLE", true}, {u"t\u0131tle", true}, {u"title", false}};
    for (const auto& [key, isThere] : cases) {
        EXPECT_EQ(provider.HasString(key), isThere) << lm_test::ToUtf8(key);
    }
}

}  // namespace
