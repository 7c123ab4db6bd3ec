// Which cultures serve which user.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "HostTree.h"
#include "localization_manager/host/CultureChoice.h"

namespace {

using namespace lm_test;

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : " ").append(word);
    }
    return text;
}

TEST(CultureChoiceTest, ServesUsersAsTheTableSays) {
    const host::CultureChoice choice(Words("de en en-au en-GB es es-mx fr-ca id nb pt pt-br "
                                           "pt-br-x1990 ro sr-Cyrl sr-Latn zh-Hans "
                                           "zh-Hant zh-Hant-hk"),
                                     "en");
    std::ifstream file(CULTURE_CHOICES);
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        const std::string arrow = " \u2192 ";
        const std::size_t at = line.find(arrow);
        if (line.front() != '#' && at != std::string::npos) {
            EXPECT_EQ(Joined(choice.For(Words(line.substr(0, at)))), line.substr(at + arrow.size()))
                << line;
            ++count;
        }
    }
    EXPECT_GT(count, 30);
}

class UserCulturesTest : public HostTree {
protected:
    /// What a user gets whose environment is these variables and no others of the kind.
    static std::string ForUser(const host::CultureChoice& choice, const std::string& variables) {
        for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) {
            unsetenv(name);
        }
        for (const std::string& variable : Words(variables)) {
            const std::size_t at = variable.find('=');
            setenv(variable.substr(0, at).c_str(), variable.substr(at + 1).c_str(), 1);
        }
        return Joined(choice.ForUser());
    }
};

TEST_F(UserCulturesTest, ComeFromTheEnvironmentAndTheTree) {
    for (const char* const directory : {"de", "pt-br", "zh-Hant", "ru"}) {
        files.Write(directory + std::string("/Locs/main.lt"), "");
    }
    for (const char* const stray : {"br", "DE-at", "images", "zh-hans"}) {  // nobody asks for them
        files.Write(stray + std::string("/Locs/main.lt"), "");
    }
    files.Write("fr/Plural.rule", "n == 1;");
    const TempTree other;
    other.Write("it-ch/Locs/main.lt", "");
    host::TreeSettings settings = Settings();
    settings.alternative = other.Root().string();
    const host::Tree tree(files.Root().string(), settings);
    EXPECT_EQ(Joined(tree.Cultures()), "de it-ch pt-br ru zh-Hant");

    const host::CultureChoice choice(tree.Cultures(), "de");
    EXPECT_EQ(ForUser(choice, ""), "de");
    EXPECT_EQ(ForUser(choice, "LANG=ru_RU.UTF-8"), "ru de");
    EXPECT_EQ(ForUser(choice, "LANG=ru_RU LC_MESSAGES=it"), "it-ch de");
    EXPECT_EQ(ForUser(choice, "LANG=ru_RU LC_MESSAGES=it LC_ALL=pt"), "pt-br de");
    EXPECT_EQ(ForUser(choice, "LANG=ru_RU LANGUAGE=:pt_BR::zh_TW:"), "pt-br zh-Hant ru de");
    EXPECT_EQ(ForUser(choice, "LANG=C.UTF-8 LANGUAGE=pt_BR"), "de");
}

}  // namespace
