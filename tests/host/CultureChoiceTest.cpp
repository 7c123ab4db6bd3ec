// Which cultures serve which user.
#include <algorithm>
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

using TreeCulturesTest = HostTree;

TEST_F(TreeCulturesTest, AreTheDirectoriesThatRequestsLeadTo) {
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
}

}  // namespace
