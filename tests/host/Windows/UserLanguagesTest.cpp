// What the system says of the user's languages.
#include <gtest/gtest.h>

#include "qor/platform/user_languages.h"

namespace {

/// The runner's language follows the environment that the tests are started with.
TEST(UserLanguagesTest, ComeFromTheSystem) {
    const std::vector<std::string> languages = qor::platform::UserLanguages();
    ASSERT_FALSE(languages.empty());
    EXPECT_EQ(languages.front(), "en-US");
    for (const std::string& language : languages) {
        EXPECT_FALSE(language.empty());
    }
}

}  // namespace
