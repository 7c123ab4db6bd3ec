// What the environment says of the user's languages.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "qor/platform/user_languages.h"

namespace {

TEST(UserLanguagesTest, ComeFromTheEnvironment) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"LANG=ru_RU.UTF-8", "ru_RU.UTF-8 "},
        {"LANG=ru_RU LC_MESSAGES=it", "it "},
        {"LANG=ru_RU LC_MESSAGES=it LC_ALL=pt", "pt "},
        {"LANG=ru_RU LANGUAGE=:pt_BR::zh_TW:", "pt_BR zh_TW ru_RU "},
        {"LANG=C.UTF-8 LANGUAGE=pt_BR", "C.UTF-8 "},
    };
    for (const auto& [variables, expected] : cases) {
        for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) {
            unsetenv(name);
        }
        std::istringstream stream(variables);
        for (std::string variable; stream >> variable;) {
            const std::size_t at = variable.find('=');
            setenv(variable.substr(0, at).c_str(), variable.substr(at + 1).c_str(), 1);
        }
        std::string languages;
        for (const std::string& language : qor::platform::UserLanguages()) {
            languages += language + ' ';
        }
        EXPECT_EQ(languages, expected) << variables;
    }
}

}  // namespace
