// The one style: what the engine reads stays the same, a second time changes nothing. How files look,
// tests/tool/workbench.txt shows.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "DictionaryText.h"
#include "FromUtf8.h"
#include "edit/format.h"
#include "source/comments.h"

namespace {

namespace fs = std::filesystem;
using lm_source::Document;

std::string DictionaryOf(const Document& document) {
    return lm_test::PrintDictionary(lm_test::ParseDictionary(
        LocalizationManager::Text::FromUtf8(document.Bytes(document.Content()))));
}

std::vector<std::string> CommentTexts(const Document& document) {
    std::vector<std::string> comments;
    for (const lm_source::Comment& comment : lm_source::CommentsOf(document)) {
        comments.emplace_back(document.Bytes(comment.range));
    }
    return comments;
}

/// @return whether the file has no mistakes, so that it can be formatted.
bool ExpectSameAndStable(const std::string& bytes) {
    const Document before(bytes);
    if (!before.Mistakes().empty() || before.GetEncoding().isUtf16) {
        EXPECT_THROW(lm_edit::Format(before), std::invalid_argument) << bytes;
        return false;
    }
    const std::string formatted = lm_edit::Format(before);
    const Document after(formatted);
    EXPECT_EQ(DictionaryOf(after), DictionaryOf(before)) << bytes;
    EXPECT_EQ(CommentTexts(after), CommentTexts(before)) << bytes;
    EXPECT_EQ(lm_edit::Format(after), formatted) << bytes;
    return true;
}

TEST(FormatTest, FilesOfPeopleAndOfTheFuzzerSayTheSame) {
    std::istringstream directories(FILES);
    std::size_t formatted = 0;
    for (std::string directory; std::getline(directories, directory, ':');) {
        for (const auto& file : fs::recursive_directory_iterator(directory)) {
            if (file.is_regular_file() && file.path().extension() != ".png") {
                std::ifstream stream(file.path(), std::ios::binary);
                const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
                formatted += ExpectSameAndStable(bytes) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(formatted, 20U);
}

/// Files with every construct, and white space and comments wherever they may stand.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::string File() {
        std::string text = Below(8) == 0 ? "\xEF\xBB\xBF" : "";
        const int entries = Below(7);
        for (int i = 0; i < entries; ++i) {
            text += Between() + "Key." + std::string(static_cast<std::size_t>(Below(50)), 'k') +
                    std::to_string(i) + Space() + '=' + Space() + Value(0) + Between();
        }
        return text;
    }

private:
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

    std::string Space() {
        static const std::vector<std::string> spaces = {"",   " ",      "\n", "\r\n",
                                                        "\t", " \n\n ", "\r"};
        return spaces[static_cast<std::size_t>(Below(static_cast<int>(spaces.size())))];
    }

    std::string Between() {
        std::string text = Space();
        for (int i = Below(3); i > 0; --i) {
            text +=
                "; it's {a} = 'comment' \t" + std::string(Below(2) == 0 ? "\n" : "\r\n") + Space();
        }
        return text + ' ';
    }

    std::string Value(int depth) {
        std::string text = Operand(depth);
        for (int i = Below(4); i > 0; --i) {
            text += Space() + '+' + Space() + Operand(depth);
        }
        return text;
    }

    std::string Operand(int depth) {
        static const std::vector<std::string> strings = {
            "''",
            "'; no comment'",
            R"('a\'b\\c\nd\n')",
            "'two\nlines'",
            "' ж'",
            "'a text that is long enough to make lines break somewhere, as those of people do'"};
        switch (Below(depth == 0 ? 5 : 4)) {
            case 0:
                return "$name";
            case 1:
                return depth < 3 ? Forms(depth) : "$other.Name";
            case 4:
                return "Key.0";
            default:
                return strings[static_cast<std::size_t>(Below(static_cast<int>(strings.size())))];
        }
    }

    std::string Forms(int depth) {
        std::string text = "{" + Space() + "$n" + Space() + ':' + Space() + Value(depth + 1);
        for (int i = Below(6); i > 0; --i) {
            text += Space() + ',' + Space() + Value(depth + 1);
        }
        return text + Space() + '}';
    }

    std::mt19937 random_;
};

TEST(FormatTest, GeneratedFilesSayTheSame) {
    std::size_t formatted = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        formatted += ExpectSameAndStable(Generator(seed).File()) ? 1 : 0;
        ASSERT_FALSE(HasFailure()) << seed;
    }
    EXPECT_GT(formatted, 2500U);
}

}  // namespace
